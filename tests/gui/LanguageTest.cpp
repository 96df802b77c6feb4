// The window in German and Dutch: every page shown, no English text left on it.
#include "window/Language.h"
#include "gui/GuiRig.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include <map>

using namespace kestrel;
using namespace kestrel::test;

namespace {

using Texts = std::map<QString, QString>; // where (tab, widget's place, kind) -> text

void add(Texts& texts, const QString& where, const QString& text)
{
    if (!text.isEmpty())
        texts[where] = text;
}

void addMenu(Texts& texts, const QString& where, const QList<QAction*>& actions)
{
    for (int i = 0; i < actions.size(); ++i)
        if (actions[i]->isVisible() && !actions[i]->isSeparator()) {
            add(texts, where + QString("/%1").arg(i), actions[i]->text());
            if (actions[i]->menu())
                addMenu(texts, where + QString("/%1").arg(i), actions[i]->menu()->actions());
        }
}

// Every visible text of the window with each of its tabs shown, and of its menus. The
// two windows compared are built alike, so a widget has the same place in both.
Texts visibleTexts()
{
    Window m(false);
    Texts texts;
    addMenu(texts, "menu", m.w.menuBar()->actions());
    // Each tab, and the pin configuration in each of its modes.
    auto* modes = m.w.findChild<QTabWidget*>("SSTabPCFG");
    std::vector<std::pair<int, int>> shown;
    for (int tab = 0; tab < m.w.tabs->count(); ++tab)
        for (int mode = 0; mode < (m.w.tabs->widget(tab)->isAncestorOf(modes) ? modes->count() : 1); ++mode)
            shown.emplace_back(tab, mode);
    for (const auto& [tab, mode] : shown) {
        m.w.tabs->setCurrentIndex(tab);
        modes->setCurrentIndex(mode);
        const QList<QWidget*> all = m.w.findChildren<QWidget*>();
        for (int i = 0; i < all.size(); ++i) {
            QWidget* w = all[i];
            if (!w->isVisible())
                continue;
            const QString at = QString("%1.%2/%3 %4 ").arg(tab).arg(mode).arg(i).arg(w->objectName());
            add(texts, at + "tip", w->toolTip());
            if (auto* label = qobject_cast<QLabel*>(w))
                add(texts, at + "text", label->text());
            if (auto* button = qobject_cast<QAbstractButton*>(w))
                add(texts, at + "text", button->text());
            if (auto* frame = qobject_cast<QGroupBox*>(w))
                add(texts, at + "title", frame->title());
            if (auto* tabs = qobject_cast<QTabWidget*>(w))
                for (int t = 0; t < tabs->count(); ++t)
                    add(texts, at + QString("tab %1").arg(t), tabs->tabText(t));
            if (auto* table = qobject_cast<QTableWidget*>(w))
                for (int c = 0; c < table->columnCount(); ++c)
                    if (table->horizontalHeaderItem(c))
                        add(texts, at + QString("head %1").arg(c), table->horizontalHeaderItem(c)->text());
            if (auto* tree = qobject_cast<QTreeWidget*>(w))
                for (int c = 0; c < tree->columnCount(); ++c)
                    add(texts, at + QString("head %1").arg(c), tree->headerItem()->text(c));
        }
    }
    return texts;
}

// Texts that stay as they are: names of the program, the ports and the instructions, the
// step table's parameter captions, and words that are the same in the language.
bool staysTheSame(const QString& text)
{
    static const QStringList same =
        QString("Kestrel Config|Corvid|sim|sim (Corvid)|ID|OK|&OK|DCC|eXtd DCC|"
                "eXtended|PWM|Servo|Baud|Pin|Port:|Bitrate|Version|Route|Module|Position|Linear|"
                "&Module|&Help|Even|System|English|Deutsch|Nederlands|"
                "<b>Orange LED</b>|P.O.|T(/60)|Patt.|ETImap|Asp#|Ins#")
            .split('|');
    static const QRegularExpression noWords(
        "^[^A-Za-z]*$|^(Pin|Port) [0-9]+|^Kestrel Config |^[0-9.]+ ?[a-z]*$|"
        "^[0-9]+k[0-9]$|^Pin\\s|^Orange [0-9]$|^Kestrel standard devices");
    return same.contains(text) || noWords.match(text).hasMatch();
}

} // namespace

TEST(Language, EveryVisibleTextOfTheWindowIsTranslated)
{
    const Texts english = visibleTexts();
    ASSERT_GT(english.size(), 300u); // the walk reached the pages
    for (const char* language : {"de", "nl"}) {
        ASSERT_EQ(Lang::install(language), language);
        const Texts translated = visibleTexts();
        QStringList untranslated;
        for (const auto& [where, text] : english)
            if (translated.count(where) && translated.at(where) == text && !staysTheSame(text))
                untranslated << where + ": " + text;
        EXPECT_TRUE(untranslated.isEmpty()) << language << ":\n" << untranslated.join("\n").toStdString();
        EXPECT_EQ(translated.size(), english.size()) << language;
    }
    EXPECT_EQ(Lang::install("en"), "en");
    EXPECT_EQ(Lang::tr("&File"), "&File");
}

TEST(Language, MessagesBuiltFromPartsAreShownInTheLanguage)
{
    ASSERT_EQ(Lang::install("de"), "de");
    {
        Window m; // on "sim"
        m.job(m.w.CommandReadAll);
        EXPECT_TRUE(m.w.LabelStatusJob->text().startsWith("Alles lesen fertig in "))
            << m.w.LabelStatusJob->text().toStdString();
    }
    // Each part of a message is shown as a message of its own; what fits no pattern stays.
    const std::pair<const char*, const char*> messages[] = {
        {"Write All cancelled at pin 12 of 32; the module may hold only part of it",
         "Alles schreiben abgebrochen bei Pin 12 von 32; das Modul enthält vielleicht nur einen Teil davon"},
        {"Reading pin 7", "Pin 7 wird gelesen"},
        {"Cannot open port COM3: Access denied", "Port COM3 lässt sich nicht öffnen: Access denied"},
        {"The module differs in 1 item", "Das Modul weicht in 1 Punkt ab"},
        {"Pin 8: Aspect 0 does not compare", "Pin 8: Aspect 0 does not compare"},
    };
    for (const auto& [english, german] : messages)
        EXPECT_EQ(translatedMessage(english), german);
    EXPECT_EQ(Lang::install("en"), "en");
    EXPECT_EQ(translatedMessage("Reading pin 7"), "Reading pin 7");
}
