#pragma once
#include "forms/AspectTimeline.h"

#include <QColor>
#include <QRect>
#include <QWidget>
#include <utility>
#include <vector>

namespace kestrel {

// The aspect program of the selected pin as a picture, painted in one widget: a row per
// aspect, a block per step as wide as the step waits, a thin mark of its own for a step
// that does not wait, a hatched block for a time too long for the module, and an arrow
// from each "Jump" to the step it goes to. The selected aspect's row is shaded and the
// selected step framed. A click on a block (or a mark) asks for its step.
class AspectTimeline : public QWidget {
    Q_OBJECT
public:
    explicit AspectTimeline(QWidget* parent = nullptr);

    void showTimeline(Timeline timeline, int currentAspect, int currentStep);
    const Timeline& timeline() const { return shown; }

    // The geometry the picture is painted with. A block starts at its start in ticks
    // times pixelsPerTick() plus kMarkWidth for each mark before it in its row, after the
    // kLabelWidth of the row's caption; a hatched block is as wide as the longest row
    // without one.
    static constexpr int kLabelWidth = 64;
    static constexpr int kMarkWidth = 6;
    static constexpr int kTopMargin = 18; // the scale bar
    double pixelsPerTick() const;
    int rowHeight() const;
    // Block `index` of row `row` as painted (a mark is kMarkWidth wide); one pixel at its
    // right stays free so that blocks side by side stay apart.
    QRect blockRect(int row, int index) const;
    // The row and block under a point, {-1, -1} for none.
    std::pair<int, int> blockAt(const QPoint& point) const;

    static const QColor kWaitColor;     // a step that waits
    static const QColor kMarkColor;     // a step that does not wait
    static const QColor kOverflowColor; // the hatching of a time the module cannot hold

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void stepClicked(int aspect, int step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString describe(const TimelineBlock& block) const;
    Timeline shown;
    // Start and width in ticks of each block as painted: a time too long for the module is
    // as wide as the longest row without such times, so that it leaves room for the rest.
    std::vector<std::vector<std::pair<int, int>>> painted;
    int paintedLongest = 0;
    int aspect = 0;
    int step = 0;
};

} // namespace kestrel
