#pragma once
#include <QCoreApplication>
#include <QString>

#include <string>

namespace kestrel {

// The window's texts in the user's language: Lang::tr("English text") is the text in the
// language installed, English (the source) when none is or a text has no translation.
class Lang {
    Q_DECLARE_TR_FUNCTIONS(Lang)

public:
    // The choices of View > Language: "" the system's language, then "en", "de", "nl".
    static const QStringList& codes();
    // A choice's name in its own language ("System" in the language shown).
    static QString name(const QString& code);
    // Installs the program's and Qt's own translations for `code` ("" the system's
    // language); English needs none. Returns the language installed ("en" when none).
    static QString install(const QString& code);
    // The language chosen in View > Language ("" the system's), kept in the settings.
    static QString chosen();
    static void choose(const QString& code);
};

// A text of the Qt-free layers, marked there with KC_TRANSLATABLE(context, text), in the
// user's language: texts built with numbers and names are not found and stay English.
QString translated(const char* context, const std::string& text);

// A message of the Qt-free layers (a status, a progress step, a message box's text), also one
// built with numbers and names: the whole text where it is marked, else the first of the
// window's message patterns ("%1 done in %2 s") that it fits, with each part in its place
// shown the same way. What fits no pattern stays English.
QString translatedMessage(const std::string& text);

} // namespace kestrel
