#pragma once
#include "session/Session.h"

#include <QWidget>
#include <functional>

class QTableWidget;

namespace kestrel {

// The Pin Overview page: a read-only table of the 32 pins with their description, mode,
// aspect layout, device and the DCC, eXtended DCC and serial addresses each answers to
// (forms/PinOverview). Choosing a row (double-click or Return) makes its pin CurrentPin.
class PinOverviewPage : public QWidget {
    Q_OBJECT
public:
    explicit PinOverviewPage(Session& session, QWidget* parent = nullptr);

    // Fills the table again from the session and selects the row of CurrentPin.
    void refresh() const;
    // Called after a chosen row has set session.config.CurrentPin: the window shows that pin everywhere.
    std::function<void()> onPinChosen;

    QTableWidget* TablePinOverview;

private:
    void choose(int row);
    bool eventFilter(QObject* watched, QEvent* event) override;

    Session& session;
};

} // namespace kestrel
