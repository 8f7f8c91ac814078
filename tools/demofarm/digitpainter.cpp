#include "digitpainter.h"

#include <algorithm>
#include <string>

namespace {

constexpr int kStroke = 6;
constexpr int kWidth = 30;
constexpr int kHeight = 54;
constexpr int kMargin = 16;

struct Box {
    int left, top, right, bottom;
};

constexpr int kMiddle = (kHeight - kStroke) / 2;

/// From the top clockwise, the middle last.
constexpr Box kSegments[] = {{0, 0, kWidth, kStroke},
                             {kWidth - kStroke, 0, kWidth, kMiddle + kStroke},
                             {kWidth - kStroke, kMiddle, kWidth, kHeight},
                             {0, kHeight - kStroke, kWidth, kHeight},
                             {0, kMiddle, kStroke, kHeight},
                             {0, 0, kStroke, kMiddle + kStroke},
                             {0, kMiddle, kWidth, kMiddle + kStroke}};

/// Segments of 0 to 9 as bits, and of a minus.
constexpr unsigned kDigits[] = {0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};
constexpr unsigned kMinus = 0x40;

void fill(RenderedFrame &picture, const Box &box, float light)
{
    const int right = std::min(box.right, picture.width);
    const int bottom = std::min(box.bottom, picture.height);
    for (int y = box.top; y < bottom; ++y) {
        for (int x = box.left; x < right; ++x) {
            RenderedPixel &pixel = picture.at(x, y);
            pixel.color = {light, light, light};
            pixel.alpha = 1.0F;
        }
    }
}

} // namespace

void paintNumber(RenderedFrame &picture, std::int64_t number)
{
    constexpr int kAdvance = kWidth + kStroke * 2;
    const std::string text = std::to_string(number);
    const int end = kMargin + int(text.size()) * kAdvance;
    fill(picture, {kMargin / 2, kMargin / 2, end - kStroke * 2 + kMargin / 2, kHeight + kMargin * 3 / 2},
         0.02F);
    int left = kMargin;
    for (const char character : text) {
        const unsigned lit = character == '-' ? kMinus : kDigits[character - '0'];
        for (unsigned i = 0; i < std::size(kSegments); ++i) {
            const Box &box = kSegments[i];
            if (lit >> i & 1U)
                fill(picture, {left + box.left, kMargin + box.top, left + box.right, kMargin + box.bottom},
                     1.0F);
        }
        left += kAdvance;
    }
}
