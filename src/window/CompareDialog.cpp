#include "window/CompareDialog.h"
#include "window/Language.h"

#include "window/Widgets.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kestrel {

namespace {

constexpr int kKeepMine = 0;
constexpr int kTakeModule = 1;

QString groupCaption(DiffGroup g)
{
    static const char* const captions[] = {
        QT_TRANSLATE_NOOP("Lang", "General settings"), QT_TRANSLATE_NOOP("Lang", "Pins"),
        QT_TRANSLATE_NOOP("Lang", "Aspects"), QT_TRANSLATE_NOOP("Lang", "Events")}; // as DiffGroup
    return Lang::tr(captions[static_cast<int>(g)]);
}

} // namespace

CompareDialog::CompareDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmCompare");
    setWindowTitle(Lang::tr("Compare with Module"));
    setWindowModality(Qt::WindowModal);
    auto* layout = new QVBoxLayout(this);
    LabelCompareSummary = named(new QLabel, "LabelCompareSummary");
    layout->addWidget(LabelCompareSummary);
    TreeCompare = named(new QTreeWidget, "TreeCompare");
    TreeCompare->setAccessibleName(Lang::tr("Differences"));
    TreeCompare->setHeaderLabels(
        {Lang::tr("Item"), Lang::tr("Module"), Lang::tr("Configuration"), Lang::tr("Choice")});
    TreeCompare->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    layout->addWidget(TreeCompare, 1);

    auto* buttons = new QHBoxLayout;
    CommandTakeAllModule = named(new QPushButton(Lang::tr("&Take All from Module")), "CommandTakeAllModule");
    CommandKeepAllMine = named(new QPushButton(Lang::tr("&Keep All Mine")), "CommandKeepAllMine");
    CommandCompareApply = named(new QPushButton(Lang::tr("&Apply")), "CommandCompareApply");
    CommandCompareApply->setToolTip(
        Lang::tr("Takes the items chosen \"take the module's\" into the configuration"));
    CommandCompareWrite = named(new QPushButton(Lang::tr("Apply and &Write Changes")), "CommandCompareWrite");
    CommandCompareWrite->setToolTip(Lang::tr("Applies, then writes to the module what you kept"));
    CommandCompareClose = named(new QPushButton(Lang::tr("&Close")), "CommandCompareClose");
    for (QPushButton* b : {CommandTakeAllModule, CommandKeepAllMine, CommandCompareApply, CommandCompareWrite,
                           CommandCompareClose})
        buttons->addWidget(b);
    layout->addLayout(buttons);
    connect(CommandTakeAllModule, &QPushButton::clicked, this, [this] { chooseAll(kTakeModule); });
    connect(CommandKeepAllMine, &QPushButton::clicked, this, [this] { chooseAll(kKeepMine); });
    connect(CommandCompareApply, &QPushButton::clicked, this, [this] { emit applyChosen(false); });
    connect(CommandCompareWrite, &QPushButton::clicked, this, [this] { emit applyChosen(true); });
    connect(CommandCompareClose, &QPushButton::clicked, this, &QDialog::reject);
    resize(900, 500);
}

void CompareDialog::showDifferences(std::vector<Difference> found, const Configuration& m,
                                    const GeneralSettings& gm, int)
{
    differences = std::move(found);
    module = m;
    gmodule = gm;
    TreeCompare->clear();
    choices.clear();
    QTreeWidgetItem* group = nullptr;
    DiffGroup last{};
    for (std::size_t i = 0; i < differences.size(); ++i) {
        const Difference& d = differences[i];
        if (!group || d.group != last) {
            group = new QTreeWidgetItem(TreeCompare, {groupCaption(d.group)});
            group->setFirstColumnSpanned(true);
            group->setExpanded(true);
            last = d.group;
        }
        auto* row =
            new QTreeWidgetItem(group, {QString::fromStdString(d.item), QString::fromStdString(d.first),
                                        QString::fromStdString(d.second)});
        auto* choice = named(new QComboBox, indexed("ComboCompareChoice", static_cast<int>(i)));
        choice->addItems({Lang::tr("keep mine"), Lang::tr("take the module's")});
        choice->setAccessibleName(QString::fromStdString(d.item));
        TreeCompare->setItemWidget(row, 3, choice);
        choices.push_back(choice);
    }
    const auto n = differences.size();
    LabelCompareSummary->setText(
        n == 0   ? Lang::tr("The module holds this configuration: no differences.")
        : n == 1 ? Lang::tr("1 difference between the module and the configuration")
                 : Lang::tr("%1 differences between the module and the configuration").arg(n));
    for (QPushButton* b :
         {CommandTakeAllModule, CommandKeepAllMine, CommandCompareApply, CommandCompareWrite})
        b->setEnabled(n > 0);
}

void CompareDialog::chooseAll(int choice)
{
    for (QComboBox* c : choices)
        c->setCurrentIndex(choice);
}

int CompareDialog::chosenCount() const
{
    int n = 0;
    for (QComboBox* c : choices)
        n += c->currentIndex() == kTakeModule;
    return n;
}

void CompareDialog::takeChosen(Configuration& config, GeneralSettings& general) const
{
    for (std::size_t i = 0; i < differences.size(); ++i)
        if (choices[i]->currentIndex() == kTakeModule)
            differences[i].take(module, gmodule, config, general);
}

} // namespace kestrel
