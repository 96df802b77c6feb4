#pragma once
#include "forms/LayoutList.h"
#include "session/Session.h"

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

class QCheckBox;
class QDialog;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace kestrel {

struct RememberedSettings;

// The Layout page: the modules of the port's layout (forms/LayoutList) with route, address,
// eXtended address, version, ID string, the time of the newest backup and the state, and
// the buttons of the jobs over all of them. The list belongs to the port chosen and is kept
// with the settings; a double-click (or Return) on a module makes it the target.
class LayoutPage : public QWidget {
    Q_OBJECT
public:
    LayoutPage(Session& session, RememberedSettings& kept, QWidget* parent = nullptr);

    QPushButton* CommandFindModules;
    QPushButton* CommandBackUpAll;
    QPushButton* CommandCheckAll;
    QCheckBox* CheckXaddressRange; // the scan also asks every eXtended address
    QTableWidget* TableLayout;

    // The list of the port chosen now (the one shown before kept with the settings).
    const std::vector<LayoutEntry>& entries();
    std::vector<FoundModule> modules();
    void found(const std::vector<FoundModule>& modules, bool corvid);
    void backedUp(const std::vector<ModuleBackup>& results);
    void checked(const std::vector<ModuleCheck>& results);
    // Shows the list again: the port's, numbered as the window numbers, with the backups' times.
    void refresh();

    // What Back Up All and Check All found, in a window of its own (made on first use and kept).
    void showSummary(const QString& title, const QString& text);
    QDialog* frmLayoutSummary = nullptr;
    QPlainTextEdit* txtLayoutSummary = nullptr;

    // A module chosen as the target: the window sets the link's controls.
    std::function<void(const FoundModule&)> onModuleChosen;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void followPort();
    void keep();

    Session& session;
    RememberedSettings& kept;
    QString port; // whose list is shown
    std::vector<LayoutEntry> list;
};

} // namespace kestrel
