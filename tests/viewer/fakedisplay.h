#pragma once

#include <viewer/frames/framedisplay.h>
#include <viewer/frames/imageframe.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <utility>

/// A display that keeps the rules of showing frames and has no GL. It reads every byte of an upload, and touches the shown
/// frame when another takes its place, so that a sanitizer sees what is gone.
class FakeDisplay final : public FrameDisplay {
public:
    std::int32_t longestSide() override { return longest; }
    void uploadTextures(ImageFrame &frame) override
    {
        frame.refusal = refusal;
        if (refusal != Refusal::None)
            return;
        uploaded.clear();
        for (std::size_t i = 0; i < frame.planeSizes.size(); ++i) {
            const auto *data = static_cast<const char *>(frame.planeData(i));
            uploaded.append(QByteArray(data, static_cast<qsizetype>(frame.planeBytes(i))));
            frame.textureNames.push_back(1);
        }
        textures += uploaded.size();
        ++uploads;
    }
    void deleteTextures(ImageFrame &frame) override
    {
        textures -= static_cast<qsizetype>(frame.textureNames.size());
        frame.textureNames.clear();
    }
    void showFrame(ImageFrame *frame) override
    {
        if (frame == shown)
            return;
        if (ImageFrame *before = std::exchange(shown, frame))
            before->release();
        if (frame)
            frame->retain();
    }
    void frameDies(const ImageFrame &frame) override
    {
        if (shown == &frame)
            shown = nullptr;
    }

    ImageFrame *shown = nullptr;
    Refusal refusal = Refusal::None; ///< of every upload
    std::int32_t longest = std::numeric_limits<std::int32_t>::max();
    QList<QByteArray> uploaded; ///< planes of the last upload
    int uploads = 0;
    qsizetype textures = 0; ///< alive
};
