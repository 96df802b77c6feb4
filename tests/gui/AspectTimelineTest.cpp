// The timeline painted offscreen: its blocks where the step durations put them.
#include "window/AspectTimeline.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace kestrel;

namespace {
// The runs of one colour along a line of the image: (first x, length).
std::vector<std::pair<int, int>> runs(const QImage& image, int y, const QColor& colour)
{
    std::vector<std::pair<int, int>> out;
    for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == colour) {
            if (out.empty() || out.back().first + out.back().second != x)
                out.push_back({x, 0});
            ++out.back().second;
        }
    return out;
}
} // namespace

TEST(AspectTimeline, PaintsEachBlockAsWideAsItsStepWaits)
{
    Configuration c;
    c.pin(0).AspectLayout = 3;
    c.step(0, 0, 0) = {9, 0, 0, 10, 0, 0};   // On: a mark
    c.step(0, 0, 1) = {102, 0, 0, 0, 50, 0}; // Wait 50 ticks
    c.step(0, 0, 2) = {96, 0, 0, 12, 25, 1}; // SetLevel & Wait, 200 ticks
    c.step(0, 0, 3) = {1, 0, 0, 0, 1, 0};    // Jump back to step 1
    AspectTimeline picture;
    picture.showTimeline(aspectTimeline(c), 1, 0);
    picture.resize(800, picture.sizeHint().height());
    QImage image(picture.size(), QImage::Format_RGB32);
    picture.render(&image);

    const double scale = picture.pixelsPerTick();
    const int left = AspectTimeline::kLabelWidth + AspectTimeline::kMarkWidth; // after the On mark
    const int y = picture.blockRect(0, 1).bottom() - 1;                        // below the texts
    const auto waits = runs(image, y, AspectTimeline::kWaitColor);
    ASSERT_EQ(waits.size(), 2u);
    const int end1 = left + int(std::lround(50 * scale)), end2 = left + int(std::lround(250 * scale));
    EXPECT_EQ(waits, (std::vector<std::pair<int, int>>{{left, end1 - left - 1}, {end1, end2 - end1 - 1}}));
    EXPECT_NEAR(double(waits[1].second + 1) / (waits[0].second + 1), 4.0, 0.05);
    const auto marks = runs(image, y, AspectTimeline::kMarkColor);
    EXPECT_EQ(marks, (std::vector<std::pair<int, int>>{{AspectTimeline::kLabelWidth, 5}, {end2, 5}}));

    // A time longer than the module counts is hatched.
    c.step(0, 0, 1) = {102, 0, 0, 0, 100, 3};
    picture.showTimeline(aspectTimeline(c), 1, 0);
    picture.render(&image);
    const QRect hatched = picture.blockRect(0, 1);
    int overflowPixels = 0;
    for (int x = hatched.left(); x <= hatched.right(); ++x)
        overflowPixels += image.pixelColor(x, hatched.top() + 4) == AspectTimeline::kOverflowColor;
    EXPECT_GT(overflowPixels, hatched.width() / 8);
}
