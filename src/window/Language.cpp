#include "window/Language.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSettings>
#include <QTranslator>

#include <vector>

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

namespace {

// The messages that the Qt-free layers build from parts, most particular first. Each part
// (%1, %2 ... in the order they stand) is again a message or a number.
const char* const kMessagePatterns[] = {
    QT_TRANSLATE_NOOP("Messages", "%1 stopped by a program error; the configuration is as it was before"),
    QT_TRANSLATE_NOOP("Messages", "%1; the module may hold only part of it"),
    QT_TRANSLATE_NOOP("Messages", "%1: the pages show a partial read"),
    QT_TRANSLATE_NOOP("Messages", "%1: the module holds the configuration"),
    QT_TRANSLATE_NOOP("Messages", "%1: the module differs, see the verification report"),
    QT_TRANSLATE_NOOP("Messages", "%1 done in %2 s"),
    QT_TRANSLATE_NOOP("Messages", "%1 cancelled %2"),
    QT_TRANSLATE_NOOP("Messages", "%1 stopped %2"),
    QT_TRANSLATE_NOOP("Messages", "at pin %1 of %2"),
    QT_TRANSLATE_NOOP("Messages", "The module differs in 1 item"),
    QT_TRANSLATE_NOOP("Messages", "The module differs in %1 items"),
    QT_TRANSLATE_NOOP("Messages", "differs (1 item)"),
    QT_TRANSLATE_NOOP("Messages", "differs (%1 items)"),
    QT_TRANSLATE_NOOP("Messages", "Reading pin %1"),
    QT_TRANSLATE_NOOP("Messages", "Writing pin %1"),
    QT_TRANSLATE_NOOP("Messages", "Verifying pin %1"),
    QT_TRANSLATE_NOOP("Messages", "Writing change %1 of %2"),
    QT_TRANSLATE_NOOP("Messages", "Asking %1"),
    QT_TRANSLATE_NOOP("Messages", "Reading %1"),
    QT_TRANSLATE_NOOP("Messages", "Writing %1"),
    QT_TRANSLATE_NOOP("Messages", "Verifying %1"),
    QT_TRANSLATE_NOOP("Messages", "Cannot open port %1: %2"),
    QT_TRANSLATE_NOOP("Messages", "Cannot open port %1"),
    QT_TRANSLATE_NOOP("Messages", "Unknown configuration: %1"),
};

// The whole text in any context the core's texts are marked in.
QString exactly(const QString& english)
{
    const QByteArray source = english.toUtf8();
    for (const char* context : {"Messages", "Lang", "WorkState", "LayoutList"})
        if (QString shown = QCoreApplication::translate(context, source.constData()); shown != english)
            return shown;
    return {};
}

QString translatedMessage(const QString& english, int depth)
{
    if (QString shown = exactly(english); !shown.isEmpty())
        return shown;
    if (depth == 0)
        return english;
    static const std::vector<QRegularExpression> fits = [] {
        std::vector<QRegularExpression> out;
        for (const char* pattern : kMessagePatterns)
            out.emplace_back(
                "^" + QRegularExpression::escape(pattern).replace(QRegularExpression(R"(\\%(\d))"), "(.+?)") +
                "$");
        return out;
    }();
    for (std::size_t i = 0; i < fits.size(); ++i) {
        const QRegularExpressionMatch match = fits[i].match(english);
        const QString shown = QCoreApplication::translate("Messages", kMessagePatterns[i]);
        if (!match.hasMatch() || shown == kMessagePatterns[i])
            continue;
        // Each %n of the translation takes the n-th part, in whatever order the language puts them.
        QString out;
        for (qsizetype at = 0; at < shown.size(); ++at) {
            const int part = at + 1 < shown.size() && shown[at] == '%' ? shown[at + 1].digitValue() : -1;
            if (part >= 1 && part <= match.lastCapturedIndex()) {
                out += translatedMessage(match.captured(part), depth - 1);
                ++at;
            } else {
                out += shown[at];
            }
        }
        return out;
    }
    return english;
}

} // namespace

QString translatedMessage(const std::string& text)
{
    return translatedMessage(QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())), 3);
}

} // namespace kestrel
