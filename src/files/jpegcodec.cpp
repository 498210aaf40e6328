#include "files/jpegcodec.h"
#include "core/encoderows.h"

#include "core/dibsection.h"
#include "core/numeric.h"
#include "files/picturelimits.h"
#include "files/reduce.h"

#include <QIODevice>
#include <QTransform>

#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <vector>

#include <jpeglib.h>
#include <jerror.h>

namespace tf {

namespace {

// The state behind the library's error manager. Plain data only: the long jump of a fault
// passes over the library's frames.
struct ErrorState {
    jpeg_error_mgr pub;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX];
    bool endedEarly; // the data ran out before the last row
    bool rowsDone;
};

void onError(j_common_ptr c)
{
    auto *e = reinterpret_cast<ErrorState *>(c->err);
    (*c->err->format_message)(c, e->message);
    std::longjmp(e->jump, 1);
}

void onMessage(j_common_ptr c, int level)
{
    auto *e = reinterpret_cast<ErrorState *>(c->err);
    if (level < 0 && c->err->msg_code == JWRN_JPEG_EOF && !e->rowsDone)
        e->endedEarly = true;
}

void initErrors(ErrorState &e)
{
    std::memset(&e, 0, sizeof e);
    jpeg_std_error(&e.pub);
    e.pub.error_exit = onError;
    e.pub.emit_message = onMessage;
}

// At least one bit is coded for every 8 x 8 block of the first component in any scan order,
// so a file of n bytes holds at most 8n blocks: 512 pixels a byte.
constexpr double PixelsPerByte = 512.0;

// EXIF orientation of the APP1 segment: 1 (upright) when there is none or it cannot be read.
int exifOrientation(const jpeg_saved_marker_ptr markers)
{
    for (jpeg_saved_marker_ptr m = markers; m; m = m->next) {
        if (m->marker != JPEG_APP0 + 1 || m->data_length < 14 ||
            std::memcmp(m->data, "Exif\0\0", 6) != 0)
            continue;
        const unsigned char *t = m->data + 6;
        const size_t n = m->data_length - 6;
        const bool le = t[0] == 'I' && t[1] == 'I';
        if (!le && !(t[0] == 'M' && t[1] == 'M'))
            return 1;
        const auto u16 = [&](size_t at) -> unsigned {
            return le ? unsigned(t[at] | (t[at + 1] << 8)) : unsigned((t[at] << 8) | t[at + 1]);
        };
        const auto u32 = [&](size_t at) -> size_t {
            return le ? size_t(t[at]) | size_t(t[at + 1]) << 8 | size_t(t[at + 2]) << 16 |
                            size_t(t[at + 3]) << 24
                      : size_t(t[at]) << 24 | size_t(t[at + 1]) << 16 | size_t(t[at + 2]) << 8 |
                            size_t(t[at + 3]);
        };
        const size_t ifd = u32(4);
        if (ifd > n || n - ifd < 2)
            return 1;
        const unsigned count = u16(ifd);
        for (unsigned i = 0; i < count; ++i) {
            const size_t entry = ifd + 2 + size_t(i) * 12;
            if (entry > n || n - entry < 12)
                return 1;
            if (u16(entry) == 0x0112) {
                const unsigned o = u16(entry + 8);
                return o >= 1 && o <= 8 ? int(o) : 1;
            }
        }
    }
    return 1;
}

QImage upright(const QImage &image, int orientation)
{
    switch (orientation) {
    case 2: return image.mirrored(true, false);
    case 3: return image.transformed(QTransform().rotate(180));
    case 4: return image.mirrored(false, true);
    case 5: return image.transformed(QTransform().rotate(90)).mirrored(true, false);
    case 6: return image.transformed(QTransform().rotate(90));
    case 7: return image.transformed(QTransform().rotate(270)).mirrored(true, false);
    case 8: return image.transformed(QTransform().rotate(270));
    default: return image;
    }
}

// What the decode hands back besides the rows; set inside the guarded region.
struct DecodeState {
    QImage *image = nullptr;
    std::vector<unsigned char> *cmykRow = nullptr;
    int storedW = 0, storedH = 0;
    int orientation = 1;
    int refusedBySize = 0; // 1 when the declared size was refused
    bool scaled = false;
    bool keepScale = false; // come back at the DCT scale, not resampled (DecodeRequest::atLeast)
};

// Makes the picture of the output size; false when it cannot be had.
bool makeImage(QImage &image, std::vector<unsigned char> &cmyk, int w, int h, int components)
{
    try {
        image = QImage(w, h, QImage::Format_RGB32);
        if (components == 4)
            cmyk.resize(size_t(w) * 4);
        return !image.isNull();
    } catch (...) {
        return false;
    }
}

// The decode between setjmp and the library's long jumps. 0 success, 1 a library fault,
// 2 a refused size, 3 no memory.
int decodeJpegRows(ErrorState &err, const unsigned char *data, unsigned long size,
                   const DecodeRequest &request, DecodeState &st)
{
    jpeg_decompress_struct cinfo;
    std::memset(&cinfo, 0, sizeof cinfo);
    cinfo.err = &err.pub;
    volatile int result = 1;
    if (setjmp(err.jump)) {
        jpeg_destroy_decompress(&cinfo);
        return int(result);
    }
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, data, size);
    jpeg_save_markers(&cinfo, JPEG_APP0 + 1, 0xFFFF);
    jpeg_read_header(&cinfo, TRUE);
    st.storedW = int(cinfo.image_width);
    st.storedH = int(cinfo.image_height);
    if (!checkDeclaredSize(QSize(st.storedW, st.storedH), qint64(size), PixelsPerByte).isEmpty()) {
        result = 2;
        jpeg_destroy_decompress(&cinfo);
        return 2;
    }
    st.orientation = exifOrientation(cinfo.marker_list);
    const int components = cinfo.num_components;
    if (components == 4) {
        cinfo.out_color_space = JCS_CMYK;
    } else {
        cinfo.out_color_space = JCS_EXT_BGRX;
    }
    const QSize stored(st.storedW, st.storedH);
    QSize target = loadedSize(stored, request);
    if (target == stored && request.atLeast.isValid()) {
        // The size asked for is upright; orientations 5 to 8 turn the picture by 90 degrees.
        target = st.orientation >= 5 ? request.atLeast.transposed() : request.atLeast;
        target = target.boundedTo(stored);
        st.keepScale = true;
    }
    if (target != stored) {
        // The smallest DCT scale that stays at or above the target.
        cinfo.scale_num = 1;
        cinfo.scale_denom = unsigned(jpegScaleFor(stored, target));
        st.scaled = cinfo.scale_denom > 1;
    }
    jpeg_start_decompress(&cinfo);
    const int w = int(cinfo.output_width), h = int(cinfo.output_height);
    if (!makeImage(*st.image, *st.cmykRow, w, h, components)) {
        result = 3;
        jpeg_destroy_decompress(&cinfo);
        return 3;
    }
    const bool inverted = cinfo.saw_Adobe_marker;
    while (cinfo.output_scanline < cinfo.output_height) {
        const int y = int(cinfo.output_scanline);
        if (components == 4) {
            JSAMPROW row = st.cmykRow->data();
            jpeg_read_scanlines(&cinfo, &row, 1);
            auto *out = reinterpret_cast<QRgb *>(st.image->scanLine(y));
            for (int x = 0; x < w; ++x) {
                int c = row[x * 4], m = row[x * 4 + 1], yel = row[x * 4 + 2], k = row[x * 4 + 3];
                if (!inverted) {
                    c = 255 - c;
                    m = 255 - m;
                    yel = 255 - yel;
                    k = 255 - k;
                }
                out[x] = qRgb(c * k / 255, m * k / 255, yel * k / 255);
            }
        } else {
            JSAMPROW row = st.image->scanLine(y);
            jpeg_read_scanlines(&cinfo, &row, 1);
        }
        if (err.endedEarly) {
            jpeg_destroy_decompress(&cinfo);
            return 1;
        }
    }
    err.rowsDone = true;
    jpeg_finish_decompress(&cinfo);
    jpeg_destroy_decompress(&cinfo);
    return 0;
}

// The header alone: 0 success, 1 a library fault.
int readJpegHeader(ErrorState &err, const unsigned char *data, unsigned long size, int &w, int &h,
                   int &orientation)
{
    jpeg_decompress_struct cinfo;
    std::memset(&cinfo, 0, sizeof cinfo);
    cinfo.err = &err.pub;
    if (setjmp(err.jump)) {
        jpeg_destroy_decompress(&cinfo);
        return 1;
    }
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, data, size);
    jpeg_save_markers(&cinfo, JPEG_APP0 + 1, 0xFFFF);
    jpeg_read_header(&cinfo, TRUE);
    w = int(cinfo.image_width);
    h = int(cinfo.image_height);
    orientation = exifOrientation(cinfo.marker_list);
    jpeg_destroy_decompress(&cinfo);
    return 0;
}

} // namespace

QSize jpegHeaderSize(QByteArrayView bytes)
{
    ErrorState err;
    initErrors(err);
    int w = 0, h = 0, orientation = 1;
    if (readJpegHeader(err, reinterpret_cast<const unsigned char *>(bytes.data()),
                       (unsigned long)bytes.size(), w, h, orientation) != 0 ||
        w <= 0 || h <= 0)
        return QSize();
    return orientation >= 5 ? QSize(h, w) : QSize(w, h);
}

int jpegScaleFor(QSize stored, QSize target)
{
    for (int d : {8, 4, 2}) {
        if ((stored.width() + d - 1) / d >= target.width() &&
            (stored.height() + d - 1) / d >= target.height())
            return d;
    }
    return 1;
}

Decoded decodeJpeg(QByteArrayView bytes, const DecodeRequest &request)
{
    Decoded d;
    ErrorState err;
    initErrors(err);
    QImage image;
    std::vector<unsigned char> cmykRow;
    DecodeState st;
    st.image = &image;
    st.cmykRow = &cmykRow;
    const int r = decodeJpegRows(err, reinterpret_cast<const unsigned char *>(bytes.data()),
                                 (unsigned long)bytes.size(), request, st);
    d.stored = QSize(st.storedW, st.storedH);
    if (r == 2) {
        d.detail = checkDeclaredSize(d.stored, bytes.size(), PixelsPerByte);
        return d;
    }
    if (r == 3) {
        d.detail = QStringLiteral("Out of memory");
        return d;
    }
    if (r != 0 && !err.rowsDone) {
        d.detail = err.endedEarly ? QStringLiteral("JPEG: the file ends before the last row")
                                  : QStringLiteral("JPEG: ") + QString::fromLatin1(err.message);
        return d;
    }
    const QSize target = loadedSize(d.stored, request);
    if (!st.keepScale && image.size() != target)
        image = resampledImage(image, target);
    d.image = upright(image, st.orientation);
    return d;
}

int IJL_DIB_PAD_BYTES(int width, int channels)
{
    return ((width * channels + 3) / 4) * 4 - width * channels;
}

namespace {

constexpr size_t OutBufferSize = 1 << 16;

// The destination manager that writes to a QIODevice in blocks.
struct DeviceDestination {
    jpeg_destination_mgr pub;
    QIODevice *out;
    unsigned char *buffer;
    bool failed;
};

void initDestination(j_compress_ptr c)
{
    auto *d = reinterpret_cast<DeviceDestination *>(c->dest);
    d->pub.next_output_byte = d->buffer;
    d->pub.free_in_buffer = OutBufferSize;
}

boolean emptyBuffer(j_compress_ptr c)
{
    auto *d = reinterpret_cast<DeviceDestination *>(c->dest);
    if (d->out->write(reinterpret_cast<const char *>(d->buffer), qint64(OutBufferSize)) !=
        qint64(OutBufferSize)) {
        d->failed = true;
        ERREXIT(c, JERR_FILE_WRITE);
    }
    d->pub.next_output_byte = d->buffer;
    d->pub.free_in_buffer = OutBufferSize;
    return TRUE;
}

void termDestination(j_compress_ptr c)
{
    auto *d = reinterpret_cast<DeviceDestination *>(c->dest);
    const qint64 n = qint64(OutBufferSize - d->pub.free_in_buffer);
    if (n > 0 && d->out->write(reinterpret_cast<const char *>(d->buffer), n) != n) {
        d->failed = true;
        ERREXIT(c, JERR_FILE_WRITE);
    }
}

int encodeRows(ErrorState &err, DeviceDestination &dest, const EncodeRows &source, int quality,
               int dpi, const QByteArray &comment)
{
    jpeg_compress_struct cinfo;
    std::memset(&cinfo, 0, sizeof cinfo);
    cinfo.err = &err.pub;
    if (setjmp(err.jump)) {
        jpeg_destroy_compress(&cinfo);
        return 1;
    }
    jpeg_create_compress(&cinfo);
    dest.pub.init_destination = initDestination;
    dest.pub.empty_output_buffer = emptyBuffer;
    dest.pub.term_destination = termDestination;
    cinfo.dest = &dest.pub;

    cinfo.image_width = JDIMENSION(source.width);
    cinfo.image_height = JDIMENSION(source.height);
    cinfo.input_components = source.bytesPerPixel;
    cinfo.in_color_space = source.bytesPerPixel == 4 ? JCS_EXT_BGRX : JCS_EXT_BGR;
    jpeg_set_defaults(&cinfo);
    jpeg_set_quality(&cinfo, quality, TRUE);
    // 4:2:0: the luminance at full size, both colour planes at half width and height.
    cinfo.comp_info[0].h_samp_factor = 2;
    cinfo.comp_info[0].v_samp_factor = 2;
    cinfo.comp_info[1].h_samp_factor = cinfo.comp_info[1].v_samp_factor = 1;
    cinfo.comp_info[2].h_samp_factor = cinfo.comp_info[2].v_samp_factor = 1;
    cinfo.write_JFIF_header = TRUE;
    if (dpi > 0 && dpi <= 65535) {
        cinfo.density_unit = 1; // dots per inch
        cinfo.X_density = UINT16(dpi);
        cinfo.Y_density = UINT16(dpi);
    }
    jpeg_start_compress(&cinfo, TRUE);
    if (!comment.isEmpty())
        jpeg_write_marker(&cinfo, JPEG_COM, reinterpret_cast<const JOCTET *>(comment.constData()),
                          unsigned(comment.size()));
    while (cinfo.next_scanline < cinfo.image_height) {
        JSAMPROW row = const_cast<JSAMPROW>(source.row(int(cinfo.next_scanline)));
        jpeg_write_scanlines(&cinfo, &row, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    return 0;
}

} // namespace

bool SaveJPG(const EncodeRows &source, QIODevice &out, int quality, const PictureMeta &meta,
                 QString *why)
{
    if (source.empty()) {
        if (why)
            *why = QStringLiteral("JPEG: no picture");
        return false;
    }
    // A comment segment holds at most 65533 bytes; a longer recipe loses its last lines.
    QByteArray comment = metaCommentText(meta).toUtf8();
    while (comment.size() > 65533)
        comment.truncate(comment.lastIndexOf('\n'));
    std::vector<unsigned char> buffer(OutBufferSize);
    DeviceDestination dest{};
    dest.out = &out;
    dest.buffer = buffer.data();
    ErrorState err;
    initErrors(err);
    if (encodeRows(err, dest, source, std::clamp(quality, 1, 100), meta.dpi, comment) == 0)
        return true;
    if (why)
        *why = QStringLiteral("JPEG: ") + QString::fromLatin1(err.message);
    return false;
}

bool SaveJPG(const cDIBSection &source, QIODevice &out, int quality, const PictureMeta &meta,
             QString *why)
{
    return SaveJPG(EncodeRows::of(source), out, quality, meta, why);
}

bool SaveJPG(const QImage &source, QIODevice &out, int quality, const PictureMeta &meta,
             QString *why)
{
    return SaveJPG(EncodeRows::of(source), out, quality, meta, why);
}

PictureMeta readJpegMeta(QByteArrayView bytes)
{
    // A walk over the header segments up to the first scan.
    PictureMeta meta;
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    const size_t n = size_t(bytes.size());
    if (n < 4 || p[0] != 0xFF || p[1] != 0xD8)
        return meta;
    size_t pos = 2;
    while (pos + 4 <= n && p[pos] == 0xFF) {
        const unsigned marker = p[pos + 1];
        if (marker == 0xD9 || marker == 0xDA)
            break;
        const size_t length = size_t(p[pos + 2]) << 8 | p[pos + 3];
        if (length < 2 || pos + 2 + length > n)
            break;
        const unsigned char *body = p + pos + 4;
        const size_t bodyLength = length - 2;
        if (marker == JPEG_APP0 && bodyLength >= 12 && std::memcmp(body, "JFIF\0", 5) == 0) {
            const int unit = body[7];
            const int x = body[8] << 8 | body[9];
            if (unit == 1)
                meta.dpi = x;
            else if (unit == 2)
                meta.dpi = int(CLng(x * 2.54));
        } else if (marker == JPEG_COM) {
            const QString text =
                QString::fromUtf8(reinterpret_cast<const char *>(body), qsizetype(bodyLength));
            const QString first = text.section(QLatin1Char('\n'), 0, 0);
            if (first.startsWith(QLatin1String("tarvelle-forge ")))
                meta.software = first;
            meta.recipe = recipeLinesOf(text);
        }
        pos += 2 + length;
    }
    return meta;
}

} // namespace tf
