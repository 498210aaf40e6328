#pragma once
// Pictures of many megabytes on memory the system can hand out in large pages.
//
// A picture's bytes are first touched row after row by whoever fills them (a decoder, a
// filter's copy); on small pages a 4096 x 4096 picture takes sixteen thousand page faults for
// that, which cost more than the filling itself. largeImage asks for the picture's bytes on a
// 2 MB boundary and advises the system to back them with large pages, where it can; the
// picture is otherwise an ordinary QImage (its bytes are freed when the last copy goes).

#include <QImage>

namespace tf {

// An uninitialised picture of `width` x `height` in `format`; a null image when the memory
// cannot be had. Pictures below a few megabytes are plain QImages.
QImage largeImage(int width, int height, QImage::Format format);

// A deep copy of `source` in a picture from largeImage.
QImage largeCopy(const QImage &source);

} // namespace tf
