#pragma once
// An animation in the work picture (the plasma tunnel): a sequence of frames the window shows
// one after the other, driven by its timer, and the export writes to a file.
//
// The session holds the animation on show (`AnimationState`): while it runs, RunState says so
// and the other commands wait; a Stop is taken at the end of the frame being drawn. After the
// stop the animation stays, so that it can still be saved as a file.

#include <QImage>
#include <QSize>
#include <cstdint>
#include <memory>
#include <vector>

namespace tf {

class Animation {
public:
    virtual ~Animation() = default;
    // The frames' size.
    virtual QSize frameSize() const = 0;
    // The frames per second it is meant to be seen at (the window's timer follows it).
    virtual int framesPerSecond() const { return 30; }
    // Draws the frame on show into `frame`, a Format_RGB32 picture of at least frameSize().
    virtual void render(QImage &frame) = 0;
    // Moves on by `frames` frames at framesPerSecond(); fractions of a frame add up.
    virtual void advance(double frames) = 0;
    // A copy at the present frame, for an export that must not move the one on show.
    virtual std::unique_ptr<Animation> clone() const = 0;
};

struct AnimationState {
    // The animation on show, or the last one that ran (null: none yet).
    std::unique_ptr<Animation> current;
    // Stop asked for: the window ends the run after the present frame.
    bool stopRequested = false;
    // The frames shown since the start.
    long framesShown = 0;
    // Laid over the picture at the paint dialog's transparency: the picture under the frames
    // and the blend of each pair of channel values, index (frame << 8) | picture. Empty: the
    // frames cover the picture.
    QImage ground;
    std::vector<uint8_t> blend;
};

} // namespace tf
