#include "window/Language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace kestrel {

namespace {

constexpr const char* kSettingsKey = "window/language";

// The translators installed, replaced when another language is installed.
QTranslator* programTranslator = nullptr;
QTranslator* qtTranslator = nullptr;

void remove(QTranslator*& translator)
{
    if (!translator)
        return;
    QCoreApplication::removeTranslator(translator);
    delete translator;
    translator = nullptr;
}

} // namespace

const QStringList& Lang::codes()
{
    static const QStringList all{QString(), "en", "de", "nl"};
    return all;
}

QString Lang::name(const QString& code)
{
    if (code == "en")
        return "English";
    if (code == "de")
        return "Deutsch";
    if (code == "nl")
        return "Nederlands";
    return tr("System");
}

QString Lang::install(const QString& code)
{
    remove(programTranslator);
    remove(qtTranslator);
    QString language = code;
    if (language.isEmpty()) {
        // The first of the system's languages that the program speaks, else English.
        language = "en";
        for (const QString& ui : QLocale::system().uiLanguages()) {
            const QString first = QLocale(ui).name().section('_', 0, 0);
            if (codes().contains(first) && !first.isEmpty()) {
                language = first;
                break;
            }
        }
    }
    if (language == "en" || !codes().contains(language))
        return "en";
    auto* program = new QTranslator;
    if (!program->load(":/i18n/kestrel-config_" + language + ".qm")) {
        delete program;
        return "en";
    }
    QCoreApplication::installTranslator(programTranslator = program);
    // Qt's own texts (the standard buttons of the dialogs), where Qt's translations are
    // installed: beside Qt's libraries, or in the program's folder.
    auto* qt = new QTranslator;
    if (qt->load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        qt->load("qtbase_" + language, QCoreApplication::applicationDirPath() + "/translations"))
        QCoreApplication::installTranslator(qtTranslator = qt);
    else
        delete qt;
    return language;
}

QString Lang::chosen()
{
    const QString code = QSettings("Kestrel", "Kestrel Config").value(kSettingsKey).toString();
    return codes().contains(code) ? code : QString();
}

void Lang::choose(const QString& code)
{
    QSettings("Kestrel", "Kestrel Config").setValue(kSettingsKey, code);
}

QString translated(const char* context, const std::string& text)
{
    const QString english = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    const QString shown = QCoreApplication::translate(context, text.c_str());
    // Untranslated, the text comes back as read from UTF-8; the core's texts are Latin-1.
    return shown == QString::fromUtf8(text.c_str()) ? english : shown;
}

} // namespace kestrel
