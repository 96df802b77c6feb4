#include "window/AspectTimeline.h"
#include "window/Language.h"

#include "model/StepDisplay.h"
#include "window/Bindings.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace kestrel {

const QColor AspectTimeline::kWaitColor(0xa8, 0xc8, 0xf0);
const QColor AspectTimeline::kMarkColor(0x50, 0x50, 0x50);
const QColor AspectTimeline::kOverflowColor(0xd0, 0x20, 0x20);

namespace {
constexpr int kRightMargin = 60;   // the row's whole time
constexpr int kShortestScale = 50; // one second fills the picture at the most
const QColor kArrowColor(0xa0, 0x30, 0x30);
const QColor kCurrentRow(0xf2, 0xf2, 0xe0);
} // namespace

AspectTimeline::AspectTimeline(QWidget* parent) : QWidget(parent)
{
    setObjectName("AspectTimeline");
    setAccessibleName(Lang::tr("Aspect timeline"));
    setFocusPolicy(Qt::NoFocus); // the step rows beside it take the keyboard
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void AspectTimeline::showTimeline(Timeline timeline, int currentAspect, int currentStep)
{
    const bool resized = timeline.rows.size() != shown.rows.size();
    shown = std::move(timeline);
    int plain = 0;
    for (const TimelineRow& row : shown.rows) {
        int length = 0;
        for (const TimelineBlock& b : row.blocks)
            length += b.overflow ? 0 : b.width;
        plain = std::max(plain, length);
    }
    painted.clear();
    paintedLongest = 0;
    for (const TimelineRow& row : shown.rows) {
        int at = 0;
        auto& places = painted.emplace_back();
        for (const TimelineBlock& b : row.blocks) {
            const int ticks = b.overflow ? std::max(plain, kShortestScale) : b.width;
            places.emplace_back(at, ticks);
            at += ticks;
        }
        paintedLongest = std::max(paintedLongest, at);
    }
    aspect = currentAspect;
    step = currentStep;
    QStringList rows;
    for (const TimelineRow& row : shown.rows) {
        QStringList steps;
        for (const TimelineBlock& b : row.blocks)
            steps << describe(b);
        rows << Lang::tr("Aspect %1: %2")
                    .arg(row.aspect)
                    .arg(steps.isEmpty() ? Lang::tr("no steps") : steps.join("; "));
    }
    setAccessibleDescription(rows.join(". "));
    if (resized)
        updateGeometry();
    update();
}

int AspectTimeline::rowHeight() const { return shown.rows.size() > 4 ? 17 : 34; }

double AspectTimeline::pixelsPerTick() const
{
    const int room = width() - kLabelWidth - kRightMargin - shown.mostMarks * kMarkWidth;
    return std::max(room, 1) / double(std::max(paintedLongest, kShortestScale));
}

QRect AspectTimeline::blockRect(int row, int index) const
{
    const TimelineRow& r = shown.rows.at(static_cast<std::size_t>(row));
    int marks = 0;
    for (int i = 0; i < index; ++i)
        marks += r.blocks[static_cast<std::size_t>(i)].waits() ? 0 : 1;
    const TimelineBlock& b = r.blocks.at(static_cast<std::size_t>(index));
    const auto [start, ticks] = painted.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(index));
    const double scale = pixelsPerTick();
    const int left = kLabelWidth + marks * kMarkWidth + static_cast<int>(std::lround(start * scale));
    const int right =
        b.waits() ? kLabelWidth + marks * kMarkWidth + static_cast<int>(std::lround((start + ticks) * scale))
                  : left + kMarkWidth;
    const int top = kTopMargin + row * rowHeight() + 2;
    return {left, top, std::max(right - left - 1, 1), rowHeight() - 4};
}

std::pair<int, int> AspectTimeline::blockAt(const QPoint& point) const
{
    for (int r = 0; r < static_cast<int>(shown.rows.size()); ++r)
        for (int i = 0; i < static_cast<int>(shown.rows[static_cast<std::size_t>(r)].blocks.size()); ++i)
            if (blockRect(r, i).adjusted(0, 0, 1, 0).contains(point))
                return {r, i};
    return {-1, -1};
}

QSize AspectTimeline::sizeHint() const
{
    return {480, kTopMargin + static_cast<int>(shown.rows.size()) * rowHeight() + 4};
}

QSize AspectTimeline::minimumSizeHint() const { return {240, sizeHint().height()}; }

QString AspectTimeline::describe(const TimelineBlock& b) const
{
    QString text = Lang::tr("step %1, %2").arg(b.step).arg(latin1(b.name));
    if (!b.key.empty())
        text += " " + latin1(b.key);
    if (!b.waits())
        text += Lang::tr(", does not wait");
    if (b.overflow)
        text += Lang::tr(", time too long for the module (%1)").arg(kTimeOverflow);
    if (b.jumpAspect >= 0)
        text += Lang::tr(", jumps to aspect %1 step %2").arg(b.jumpAspect).arg(b.jumpStep);
    return text;
}

void AspectTimeline::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    p.fillRect(rect(), palette().base());
    QFont small = font();
    small.setPointSizeF(std::max(6.0, small.pointSizeF() * 0.85));
    p.setFont(small);
    const QFontMetrics metrics(small);
    const double scale = pixelsPerTick();
    const int h = rowHeight();

    // The scale bar: the longest of these times that fits a third of the picture.
    static constexpr int kSteps[] = {1, 5, 10, 25, 50, 100, 250, 500, 1500, 3000, 6000, 15000};
    int bar = kSteps[0];
    for (int ticks : kSteps)
        if (ticks * scale <= (width() - kLabelWidth) / 3.0)
            bar = ticks;
    const int barWidth = static_cast<int>(std::lround(bar * scale));
    p.setPen(palette().text().color());
    p.drawLine(kLabelWidth, 9, kLabelWidth + barWidth, 9);
    p.drawLine(kLabelWidth, 5, kLabelWidth, 13);
    p.drawLine(kLabelWidth + barWidth, 5, kLabelWidth + barWidth, 13);
    p.drawText(kLabelWidth + barWidth + 6, 0, 200, kTopMargin, Qt::AlignVCenter, latin1(durationText(bar)));

    for (int r = 0; r < static_cast<int>(shown.rows.size()); ++r) {
        const TimelineRow& row = shown.rows[static_cast<std::size_t>(r)];
        const QRect band(0, kTopMargin + r * h, width(), h);
        if (row.aspect == aspect)
            p.fillRect(band, kCurrentRow);
        p.setPen(palette().text().color());
        p.drawText(band.adjusted(4, 0, 0, 0), Qt::AlignVCenter, Lang::tr("Aspect %1").arg(row.aspect));
        for (int i = 0; i < static_cast<int>(row.blocks.size()); ++i) {
            const TimelineBlock& b = row.blocks[static_cast<std::size_t>(i)];
            const QRect box = blockRect(r, i);
            if (!b.waits()) {
                p.fillRect(box, kMarkColor);
                continue;
            }
            p.fillRect(box, kWaitColor);
            if (b.overflow)
                p.fillRect(box.adjusted(0, 0, 0, h > 30 ? -5 : 0), QBrush(kOverflowColor, Qt::BDiagPattern));
            // The text keeps off the block's lowest pixels.
            const QRect textBox = h > 30 ? box.adjusted(3, 1, -2, -5) : box.adjusted(3, -1, -2, 1);
            const QString text =
                h > 30 ? latin1(b.name) + "\n" + latin1(b.key) : latin1(b.name) + " " + latin1(b.key);
            QStringList lines;
            for (const QString& line : text.split('\n'))
                lines << metrics.elidedText(line, Qt::ElideRight, textBox.width());
            p.setPen(b.overflow ? kOverflowColor : palette().text().color());
            p.drawText(textBox, Qt::AlignLeft | (h > 30 ? Qt::AlignTop : Qt::AlignVCenter), lines.join('\n'));
        }
        if (!row.blocks.empty()) {
            const QRect last = blockRect(r, static_cast<int>(row.blocks.size()) - 1);
            p.setPen(palette().placeholderText().color());
            p.drawText(QRect(last.right() + 4, band.top(), 200, h), Qt::AlignVCenter,
                       std::any_of(row.blocks.begin(), row.blocks.end(),
                                   [](const TimelineBlock& b) { return b.overflow; })
                           ? QString(kTimeOverflow)
                           : latin1(durationText(row.length)));
        }
    }
    // The selected step, framed.
    for (int r = 0; r < static_cast<int>(shown.rows.size()); ++r) {
        const TimelineRow& row = shown.rows[static_cast<std::size_t>(r)];
        for (int i = 0; row.aspect == aspect && i < static_cast<int>(row.blocks.size()); ++i)
            if (row.blocks[static_cast<std::size_t>(i)].step == step) {
                p.setPen(QPen(palette().highlight().color(), 2));
                p.drawRect(blockRect(r, i).adjusted(-1, -1, 0, 0));
            }
    }
    // Each Jump: an arrow from its mark to the block it goes to.
    p.setRenderHint(QPainter::Antialiasing);
    for (int r = 0; r < static_cast<int>(shown.rows.size()); ++r) {
        const TimelineRow& row = shown.rows[static_cast<std::size_t>(r)];
        for (int i = 0; i < static_cast<int>(row.blocks.size()); ++i) {
            const TimelineBlock& b = row.blocks[static_cast<std::size_t>(i)];
            if (b.jumpAspect < 0 || b.jumpAspect >= static_cast<int>(shown.rows.size()))
                continue;
            const auto& target = shown.rows[static_cast<std::size_t>(b.jumpAspect)].blocks;
            const auto to = std::find_if(target.begin(), target.end(),
                                         [&](const TimelineBlock& t) { return t.step == b.jumpStep; });
            const QRect from = blockRect(r, i);
            const QPointF start(from.center().x(), from.top());
            const QPointF end =
                to == target.end()
                    ? QPointF(kLabelWidth, kTopMargin + b.jumpAspect * h + 2)
                    : QPointF(blockRect(b.jumpAspect, static_cast<int>(to - target.begin())).left(),
                              kTopMargin + b.jumpAspect * h + 2);
            const double lift = std::min(start.y(), end.y()) - std::max(6, h / 3);
            QPainterPath path(start);
            path.cubicTo(start.x(), lift, end.x(), lift, end.x(), end.y());
            p.setPen(QPen(kArrowColor, 1.5));
            p.setBrush(Qt::NoBrush);
            p.drawPath(path);
            QPainterPath head(end);
            head.lineTo(end.x() - 4, end.y() - 6);
            head.lineTo(end.x() + 4, end.y() - 6);
            head.closeSubpath();
            p.fillPath(head, kArrowColor);
        }
    }
}

void AspectTimeline::mousePressEvent(QMouseEvent* event)
{
    const auto [r, i] =
        event->button() == Qt::LeftButton ? blockAt(event->position().toPoint()) : std::pair{-1, -1};
    if (r < 0) {
        QWidget::mousePressEvent(event);
        return;
    }
    const TimelineRow& row = shown.rows[static_cast<std::size_t>(r)];
    emit stepClicked(row.aspect, row.blocks[static_cast<std::size_t>(i)].step);
}

bool AspectTimeline::event(QEvent* e)
{
    if (e->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(e);
        const auto [r, i] = blockAt(help->pos());
        if (r < 0) {
            QToolTip::hideText();
            e->ignore();
        } else {
            const TimelineRow& row = shown.rows[static_cast<std::size_t>(r)];
            QToolTip::showText(help->globalPos(),
                               Lang::tr("Aspect %1, ").arg(row.aspect) +
                                   describe(row.blocks[static_cast<std::size_t>(i)]),
                               this);
        }
        return true;
    }
    return QWidget::event(e);
}

} // namespace kestrel
