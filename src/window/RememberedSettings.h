#pragma once
#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace kestrel {

// What the program remembers between runs, in Qt's settings store ("Kestrel"/"Kestrel
// Config"): read when the window opens, written when it closes. Values come back clamped
// to what the link takes.
struct RememberedSettings {
    QByteArray geometry; // the window's place and size; empty on a first start
    QString port = "sim";
    int bitRate = 1; // 0..2: 9600, 19200, 38400
    int numbering = 0;
    int address = 0;
    bool extended = false; // asked about again when it comes back
    int extendedAddress = 0;
    bool writePinConfigurations = true; // so that what is written verifies
    QString folder;                     // the last folder of a file dialog
    QStringList recent;                 // the last files, newest first (at most kRecentFiles)
    QStringList typedPorts;             // port paths typed by hand, newest first
    QMap<QString, QStringList> layouts; // each port's list of modules (forms/LayoutList, one a line)

    static constexpr int kRecentFiles = 5;
    static RememberedSettings load(int defaultBitRate);
    void save() const;
    static void forget();

    // A file loaded or saved joins the recent files, first.
    void remember(const QString& path);
    // A port path typed by hand that opened joins the typed ports, first.
    void rememberPort(const QString& path);
};

} // namespace kestrel
