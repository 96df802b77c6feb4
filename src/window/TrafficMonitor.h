#pragma once
#include "link/Link.h"

#include <QDialog>
#include <QPointer>

#include <deque>
#include <set>
#include <string>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;
class QTimer;

namespace kestrel {

// Every frame on the wire, both ways and on both routes, with its time, direction, bytes
// and what they mean. It watches the link only while it is shown (Link::onFrame); hidden
// or closed, it costs the link nothing.
class TrafficMonitor : public QDialog {
    Q_OBJECT
public:
    TrafficMonitor(Link& link, QWidget* parent = nullptr);

    // The most frames kept; the oldest go first.
    static constexpr int kMaxFrames = 20000;

    QTableWidget* grdMonitor; // Time, Dir, Bytes, Decoded: the frames the filter lets through
    QLabel* lblMonitorFilter;
    QComboBox* cboMonitorFilter; // "All commands" and every command name seen
    QCheckBox* chkMonitorPause;
    QLabel* lblMonitorDropped; // frames not kept while paused
    QPushButton* cmdMonitorClear;
    QPushButton* cmdMonitorSave;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    struct Line {
        QString time, direction, bytes, decoded;
        QString command; // what the filter matches
    };
    void received(FrameDirection direction, FrameRoute route, const std::vector<int>& bytes);
    bool passes(const Line& line) const;
    void addRow(const Line& line) const;
    void refill();
    void clear();
    void save();

    Link& link;
    QTimer* repaint; // running while new rows wait to be painted
    std::deque<Line> lines;
    std::set<QString> commands;
    int dropped = 0;
};

} // namespace kestrel
