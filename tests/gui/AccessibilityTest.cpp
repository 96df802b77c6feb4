// What a screen reader and a small screen get: named inputs, mnemonics, a window that fits.
#include "gui/GuiRig.h"
#include "window/AspectsPage.h"
#include "window/EditTools.h"
#include "window/HelpToolDialogs.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QMenuBar>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionFrame>
#include <QStyleOptionSpinBox>

#include <map>

using namespace kestrel;
using namespace kestrel::test;

namespace {

bool takesInput(QAccessible::Role role)
{
    using A = QAccessible;
    for (A::Role r :
         {A::EditableText, A::ComboBox, A::CheckBox, A::RadioButton, A::SpinBox, A::Slider, A::Table})
        if (role == r)
            return true;
    return false;
}

QString plain(QString caption) { return caption.remove('&').remove(':').trimmed(); }

// A name that only repeats a frame around the control, unless a label beside it (its own, or
// its box's for a spinner) says the same.
bool frameName(QWidget* w, const QString& name)
{
    bool framed = false;
    for (QWidget* p = w->parentWidget(); p; p = p->parentWidget())
        if (auto* frame = qobject_cast<QGroupBox*>(p))
            framed = framed || plain(frame->title()) == name;
    for (QLabel* label : w->window()->findChildren<QLabel*>()) // the control's or its box's label
        if (framed && label->buddy() && label->buddy()->parentWidget() == w->parentWidget() &&
            plain(label->text()) == name)
            return false;
    return framed;
}

// Walks the accessible tree under `root` but not `skip`: the inputs without a name of their
// own go to `faults`.
void walk(QAccessibleInterface* node, QWidget* skip, QStringList& faults)
{
    if (!node || !node->isValid() || node->object() == skip)
        return;
    auto* w = qobject_cast<QWidget*>(node->object());
    if (w && takesInput(node->role())) {
        const QString name = node->text(QAccessible::Name);
        if (name.trimmed().isEmpty() || frameName(w, name))
            faults << QString("%1 %2 (\"%3\")").arg(w->metaObject()->className(), w->objectName(), name);
    }
    for (int i = 0; i < node->childCount(); ++i)
        walk(node->child(i), skip, faults);
}

// Unnamed inputs and inputs not named by their label.
QStringList faultsOf(QWidget* root, QWidget* skip = nullptr)
{
    QStringList faults;
    walk(QAccessible::queryAccessibleInterface(root), skip, faults);
    for (QLabel* label : root->findChildren<QLabel*>()) // a label names the control it is for
        if (label->buddy() && !(skip && skip->isAncestorOf(label)) &&
            !label->buddy()->accessibleName().contains(plain(label->text())))
            faults << label->buddy()->objectName() + " is not named \"" + plain(label->text()) + "\"";
    return faults;
}

} // namespace

TEST(Access, NoMnemonicIsTakenTwiceWhileAPageIsShown)
{
    Window m(false);
    KestrelConfig& w = m.w;
    Configuration& c = w.session().config;
    c.pin(c.CurrentPin).AspectLayout = 3; // every step row shown
    // Each tab, the pin configuration's in each mode (a change of tab shows every page afresh).
    const std::pair<int, int> pages[] = {{2, 1}, {0, 0}, {2, 2}, {1, 0}, {2, 4}, {3, 0}, {4, 0}};
    for (const auto& [tab, mode] : pages) {
        c.pin(c.CurrentPin).ConfigMode = static_cast<std::uint8_t>(mode);
        w.tabs->setCurrentIndex(tab);
        // The captions of the menu bar and the visible buttons, options, frames and buddy labels.
        QStringList captions;
        for (QAction* menu : w.menuBar()->actions())
            captions << menu->text();
        for (QWidget* control : w.findChildren<QWidget*>()) {
            auto* button = qobject_cast<QAbstractButton*>(control);
            auto* label = qobject_cast<QLabel*>(control);
            auto* frame = qobject_cast<QGroupBox*>(control);
            if (control->isVisible() && (button || (label && label->buddy()) || frame))
                captions << (button ? button->text() : label ? label->text() : frame->title());
        }
        std::map<QString, QString> taken; // Alt+key -> caption
        QStringList clashes;
        for (const QString& caption : captions)
            if (const QString key = QKeySequence::mnemonic(caption).toString();
                !key.isEmpty() && !taken.emplace(key, caption).second)
                clashes << key + ": " + taken[key] + " / " + caption;
        EXPECT_EQ(clashes.join(", ").toStdString(), "")
            << w.tabs->widget(tab)->objectName().toStdString() << ", mode " << mode;
    }
}

TEST(Access, EveryInputIsNamedAndEveryToolButtonHasAMnemonic)
{
    Window m(false);
    // The link area and the bulk row, then each page.
    EXPECT_EQ(faultsOf(m.w.centralWidget(), m.w.tabs).join(", ").toStdString(), "");
    for (int t = 0; t < m.w.tabs->count(); ++t)
        EXPECT_EQ(faultsOf(m.w.tabs->widget(t)).join(", ").toStdString(), "")
            << m.w.tabs->widget(t)->objectName().toStdString();
    Session& s = m.w.session();
    QWidget* owner = m.w.aspectsPage;
    const QList<QDialog*> tools{new EditPinDialog(s, owner),  new EditAspectDialog(s, owner),
                                new EditStepDialog(s, owner), new TimeToolDialog(owner),
                                new PatternToolDialog(owner), new EventPatternToolDialog(owner),
                                new LevelToolDialog(owner)};
    for (QDialog* tool : tools) {
        EXPECT_EQ(faultsOf(tool).join(", ").toStdString(), "") << tool->objectName().toStdString();
        for (QLabel* label : tool->findChildren<QLabel*>()) // in a tool: exactly its label
            EXPECT_TRUE(!label->buddy() || label->buddy()->accessibleName() == label->text().remove('&'))
                << label->text().toStdString();
        for (QAbstractButton* b : tool->findChildren<QAbstractButton*>()) // check boxes and options too
            EXPECT_TRUE(b->text().contains('&')) << b->objectName().toStdString();
        auto* ok = tool->findChild<QPushButton*>("OKButton");
        EXPECT_TRUE(!ok || ok->isDefault()) << tool->objectName().toStdString();
    }
}

TEST(Access, TheWindowFits1280x720AndEveryNumberBoxShowsItsNumber)
{
    Window m(false);
    const QSize least = m.w.minimumSizeHint().expandedTo(m.w.minimumSize());
    EXPECT_TRUE(least.width() <= 1093 && least.height() <= 614) // 1366x768 at 125 %
        << least.width() << "x" << least.height();
    m.w.resize(1280, 720);
    const QRect window = m.w.rect();
    for (int t = 0; t < m.w.tabs->count(); ++t) {
        m.w.tabs->setCurrentIndex(t);
        QApplication::processEvents();
        QStringList outside;
        for (QWidget* c : m.w.findChildren<QWidget*>()) {
            if (!c->isVisible() || !(qobject_cast<QAbstractButton*>(c) || qobject_cast<QLineEdit*>(c) ||
                                     qobject_cast<QComboBox*>(c) || qobject_cast<QAbstractSpinBox*>(c) ||
                                     qobject_cast<QSlider*>(c) || qobject_cast<QLabel*>(c)))
                continue;
            QWidget* area = nullptr; // reachable by scrolling: inside the scroll area's widget
            for (QWidget* p = c->parentWidget(); p && !area; p = p->parentWidget())
                if (auto* scroll = qobject_cast<QScrollArea*>(p))
                    area = scroll->widget();
            QWidget* within = area ? area : &m.w;
            const QRect r(c->mapTo(within, QPoint(0, 0)), c->size());
            if (!(area ? area->rect() : window).contains(r) ||
                (area && !window.contains(QRect(area->parentWidget()->mapTo(&m.w, QPoint(0, 0)),
                                                area->parentWidget()->size()))))
                outside << c->objectName() + "/" + c->metaObject()->className();
        }
        EXPECT_TRUE(outside.isEmpty())
            << m.w.tabs->widget(t)->objectName().toStdString() << ": " << outside.join(", ").toStdString();
    }

    // Each spinner beside a box: the box holds its widest number, the arrows their width.
    for (QSpinBox* spin : m.w.findChildren<QSpinBox*>(QRegularExpression("^UpDown"))) {
        const QString rest =
            spin->objectName().mid(6); // UpDownECon_1 beside TextECon_1, UpDownXaddr txtXaddr
        auto* box = m.w.findChild<QLineEdit*>("Text" + rest);
        box = box ? box : m.w.findChild<QLineEdit*>("txt" + rest);
        ASSERT_NE(box, nullptr) << spin->objectName().toStdString();
        QStyleOptionFrame frame;
        frame.initFrom(box);
        frame.rect = QRect(QPoint(), box->size());
        frame.lineWidth = box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, box);
        const int room = box->style()->subElementRect(QStyle::SE_LineEditContents, &frame, box).width() - 4;
        const QFontMetrics fm(box->font());
        const int widest = std::max(fm.horizontalAdvance(QString::number(spin->minimum())),
                                    fm.horizontalAdvance(QString::number(spin->maximum())));
        QStyleOptionSpinBox arrows;
        arrows.initFrom(spin);
        arrows.rect = QRect(QPoint(), spin->size());
        QStyleOptionSpinBox roomy = arrows; // arrows with room to spare
        roomy.rect = QRect(QPoint(), QSize(200, spin->height()));
        const auto up = [spin](const QStyleOptionSpinBox& o) {
            return spin->style()->subControlRect(QStyle::CC_SpinBox, &o, QStyle::SC_SpinBoxUp, spin).width();
        };
        const auto* digits = spin->findChild<QLineEdit*>(); // the spinner's own number, not shown
        EXPECT_TRUE(widest <= room && up(arrows) >= up(roomy) && !digits->isVisibleTo(spin))
            << box->objectName().toStdString() << ": " << widest << " in " << room << ", arrows "
            << up(arrows) << " of " << up(roomy) << ", digits " << digits->width();
    }
}

TEST(Access, EverySettingSaysWhatItDoesAlsoToScreenReaders)
{
    Window m(false);
    KestrelConfig& w = m.w;
    Configuration& c = w.session().config;
    QStringList silent;
    // General, Event Control, and the pin configuration in each of its modes.
    const std::pair<int, int> pages[] = {{0, 0}, {1, 0}, {2, 1}, {2, 2}, {2, 4}};
    for (const auto& [tab, mode] : pages) {
        c.pin(c.CurrentPin).ConfigMode = static_cast<std::uint8_t>(mode);
        w.tabs->setCurrentIndex(tab);
        for (QWidget* input : w.tabs->currentWidget()->findChildren<QWidget*>()) {
            QAccessibleInterface* a = QAccessible::queryAccessibleInterface(input);
            if (input->isVisible() && a && takesInput(a->role()) &&
                (input->toolTip().isEmpty() || !a->text(QAccessible::Description).contains(input->toolTip())))
                silent << input->objectName();
        }
    }
    EXPECT_EQ(silent.join(", ").toStdString(), "");
    // The event inputs are counted from 1 on the page and from 0 in the tool: both tips say so.
    EventPatternToolDialog tool(w.aspectsPage);
    EXPECT_EQ(std::tuple(w.findChild<QWidget*>("TextECoff_0")->toolTip().contains("\"Event Input 0\""),
                         tool.chkEvent[3]->toolTip()),
              std::tuple(true, QString("\"Event Input 3\" is \"Input 4\" on the Event Control page.")));
}
