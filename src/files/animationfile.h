#pragma once
// Animations as files: an animated PNG (APNG) or an animated GIF.
//
// The encoders take the frames one at a time (Format_RGB32, all of the encoder's size) and
// hold only the compressed data, so a long animation needs no more memory than its file.
//
// APNG: 8-bit RGB, every frame whole (no dispose or blend tricks), each row filtered by the
// filter with the least sum of absolute differences, deflated by zlib (level 3: a tunnel of
// 712 x 712 costs some 60 ms a frame); the frame time is
// 1/fps second exactly (delay 1 / fps), `loops` 0 plays forever.
// GIF: 89a with the NETSCAPE2.0 loop block, each frame with a local palette of at most 256
// colours: a frame of at most 256 colours keeps them exactly, a richer one is reduced by
// median cut over 5 bits a channel, each pixel taking the nearest of its colours; LZW of our
// own. The frame time is in hundredths of a second, rounded (30 fps: 3/100 s).

#include "files/safefile.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tf {

class Animation;

enum class AnimationKind { Apng, Gif };

// The kind by the file's extension (.png / .apng, .gif, any case); nullopt for another.
std::optional<AnimationKind> animationKindOf(const QString &path);

class AnimationEncoder {
public:
    virtual ~AnimationEncoder() = default;
    // Adds the next frame; a frame of another size or format is an invalid call.
    virtual void addFrame(const QImage &frame) = 0;
    // The whole file. Call once, after the last frame.
    virtual QByteArray finish() = 0;
};

// `frames` is the number of frames that will be added (the APNG states it at its head).
std::unique_ptr<AnimationEncoder> makeAnimationEncoder(AnimationKind kind, QSize size,
                                                       int frames, int fps, int loops);

// The palette a GIF frame is written with, and each pixel's index in it (row by row).
struct IndexedFrame {
    std::vector<uint32_t> palette; // 0x00RRGGBB, at most 256
    std::vector<uint8_t> pixels;
};
IndexedFrame indexFrame(const QImage &frame);

// What an export is told while it runs: the frames done so far; answering false stops it
// (nothing is written then).
using AnimationProgress = std::function<bool(int done, int total)>;

// Writes `frames` frames of `animation` (from the frame on show; the animation moves on by
// its framesPerSecond() / fps frames each) to `path` through writeFileSafely, in the kind of
// the extension. Answers the write's result; a stop by `progress` is WriteFailure::Other with
// an empty message.
WriteResult writeAnimation(const QString &path, Animation &animation, int frames, int fps,
                           int loops, const AnimationProgress &progress = {});

} // namespace tf
