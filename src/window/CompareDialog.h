#pragma once
#include "forms/ConfigDiff.h"

#include <QDialog>
#include <vector>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace kestrel {

// "Compare with Module": every difference between the module, as just read, and the
// configuration shown, grouped general / pins / aspects / events, each with its choice
// "keep mine" or "take the module's". Apply takes the chosen items into the configuration;
// Apply and Write Changes then writes what was kept, so that the module ends equal to it.
class CompareDialog : public QDialog {
    Q_OBJECT
public:
    explicit CompareDialog(QWidget* parent = nullptr);

    void showDifferences(std::vector<Difference> found, const Configuration& module,
                         const GeneralSettings& gmodule, int numberingBase);
    // Takes every item chosen "take the module's" into config and general.
    void takeChosen(Configuration& config, GeneralSettings& general) const;
    int chosenCount() const;

    QLabel* LabelCompareSummary;
    QTreeWidget* TreeCompare;
    std::vector<QComboBox*> choices; // one a difference, in the order found
    QPushButton* CommandTakeAllModule;
    QPushButton* CommandKeepAllMine;
    QPushButton* CommandCompareApply;
    QPushButton* CommandCompareWrite;
    QPushButton* CommandCompareClose;

signals:
    // Apply (thenWrite false) or Apply and Write Changes.
    void applyChosen(bool thenWrite);

private:
    void chooseAll(int choice);
    std::vector<Difference> differences;
    Configuration module;
    GeneralSettings gmodule;
};

} // namespace kestrel
