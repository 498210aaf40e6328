#include "files/pngcodec.h"
#include "core/encoderows.h"

#include "core/dibsection.h"
#include "files/picturelimits.h"
#include "files/reduce.h"

#include <QFile>
#include <QIODevice>
#include <QtEndian>
#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstring>
#include <vector>

namespace tf {

namespace {

constexpr size_t SignatureBytes = 8;
// Deflate stands for at most 1032 bytes of raw data a byte.
constexpr double DeflateRatio = 1032.0;

// The library is asked for by its own version text (the one it was linked as), so that a
// header of another 1.6 release on the build machine does not make it refuse.
//
// The state libpng's callbacks reach through their pointers. Plain data only: the long jump
// of an error passes over the callbacks' frames.
struct ReadState {
    const unsigned char *data = nullptr;
    size_t size = 0;
    size_t pos = 0;
    bool rowsDone = false;       // every row was read: a fault after it spares the picture
    char message[256] = {};
};

void copyMessage(char (&to)[256], const char *text)
{
    std::strncpy(to, text ? text : "", sizeof to - 1);
    to[sizeof to - 1] = '\0';
}

void readBytes(png_structp png, png_bytep out, size_t n)
{
    auto *s = static_cast<ReadState *>(png_get_io_ptr(png));
    if (n > s->size - s->pos)
        png_error(png, "the file ends early");
    std::memcpy(out, s->data + s->pos, n);
    s->pos += n;
}

void onReadError(png_structp png, png_const_charp message)
{
    copyMessage(static_cast<ReadState *>(png_get_error_ptr(png))->message, message);
    png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) {}

enum class RowLayout { Bgrx32, Bgr24, Sampled };

// Where the decoded rows go: set up once the size is known, inside the guarded region.
struct RowTarget {
    RowLayout layout = RowLayout::Bgrx32;
    QImage *image = nullptr;           // Bgrx32 and Sampled: top-down
    int step = 1;                      // Sampled: every step-th row and column is kept
    std::vector<png_byte> *row = nullptr; // Sampled: the row being read
    cDIBSection *dib = nullptr;        // Bgr24: bottom-up
    std::vector<png_bytep> *rows = nullptr;
    qint64 fileBytes = 0;
    QString *why = nullptr;
};

// Makes the target of w x h and fills the row pointers; false when it cannot be had.
bool prepareRows(RowTarget &t, int w, int h)
{
    try {
        t.rows->resize(size_t(h));
        if (t.layout == RowLayout::Sampled) {
            *t.image = QImage((w + t.step - 1) / t.step, (h + t.step - 1) / t.step,
                              QImage::Format_RGB32);
            t.row->resize(size_t(w) * 4);
            return !t.image->isNull();
        }
        if (t.layout == RowLayout::Bgrx32) {
            *t.image = QImage(w, h, QImage::Format_RGB32);
            if (t.image->isNull())
                return false;
            for (int y = 0; y < h; ++y)
                (*t.rows)[size_t(y)] = t.image->scanLine(y);
        } else {
            if (!t.dib->CreateDIB(w, h))
                return false;
            const DibView v = t.dib->view();
            for (int y = 0; y < h; ++y)
                (*t.rows)[size_t(y)] = v.row(h - 1 - y);
        }
        return true;
    } catch (...) {
        return false;
    }
}

// The decode itself, between setjmp and the library's long jumps. Its locals are plain.
// Answers 0 on success, 1 for a library fault (message in state), 2 for a refused size,
// 3 when the memory for the picture is not to be had.
int decodeRows(ReadState &state, RowTarget &target, int &declaredW, int &declaredH)
{
    png_structp png = png_create_read_struct(png_get_libpng_ver(nullptr), &state, onReadError,
                                             onWarning);
    if (!png)
        return 3;
    png_infop info = png_create_info_struct(png);
    if (!info) {
        png_destroy_read_struct(&png, nullptr, nullptr);
        return 3;
    }
    volatile int result = 0;
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_read_struct(&png, &info, nullptr);
        return state.rowsDone ? 0 : (result != 0 ? int(result) : 1);
    }
    png_set_read_fn(png, &state, readBytes);
    png_set_user_limits(png, MaxDecodeSide, MaxDecodeSide);
    png_set_chunk_malloc_max(png, 8u << 20);
    png_set_chunk_cache_max(png, 1000);
    png_read_info(png, info);

    png_uint_32 w = 0, h = 0;
    int depth = 0, colourType = 0, interlace = 0;
    png_get_IHDR(png, info, &w, &h, &depth, &colourType, &interlace, nullptr, nullptr);
    declaredW = int(w);
    declaredH = int(h);
    const double rawBytes = (double(png_get_rowbytes(png, info)) + 1.0) * double(h);
    if (rawBytes > double(state.size) * DeflateRatio + 1024.0) {
        result = 2;
        png_error(png, "declared size beyond the data");
    }

    png_set_expand(png);     // palette to colours, grey below 8 bits to bytes, tRNS to alpha
    png_set_scale_16(png);   // 16-bit samples rounded to 8 bits
    png_set_strip_alpha(png);
    png_set_gray_to_rgb(png);
    png_set_packing(png);
    png_set_bgr(png);
    if (target.layout != RowLayout::Bgr24)
        png_set_filler(png, 0xFF, PNG_FILLER_AFTER);
    if (png_set_interlace_handling(png) > 1 && target.layout == RowLayout::Sampled) {
        // Interlaced rows come in passes over the whole picture: a preview is not made of them.
        result = 4;
        png_error(png, "an interlaced picture has no preview");
    }
    png_read_update_info(png, info);

    if (!prepareRows(target, int(w), int(h))) {
        result = 3;
        png_error(png, "no memory for the picture");
    }
    if (target.layout == RowLayout::Sampled) {
        for (png_uint_32 y = 0; y < h; ++y) {
            png_read_row(png, target.row->data(), nullptr);
            if (y % png_uint_32(target.step) != 0)
                continue;
            auto *out = reinterpret_cast<uint32_t *>(target.image->scanLine(int(y) / target.step));
            const auto *in = reinterpret_cast<const uint32_t *>(target.row->data());
            for (int x = 0; x < target.image->width(); ++x)
                out[x] = in[size_t(x) * size_t(target.step)];
        }
    } else {
        png_read_image(png, target.rows->data());
    }
    state.rowsDone = true;
    png_read_end(png, nullptr);
    png_destroy_read_struct(&png, &info, nullptr);
    return 0;
}

// True when every chunk up to the first IDAT lies within the file. libpng allocates (and
// clears) the buffer of an ancillary chunk by the length it claims before it reads the data,
// so a chunk claiming gigabytes in a small file would cost seconds before it fails.
bool headerChunksFit(const unsigned char *p, size_t size)
{
    size_t pos = SignatureBytes;
    while (size - pos >= 8) {
        const size_t length = qFromBigEndian<quint32>(p + pos);
        if (std::memcmp(p + pos + 4, "IDAT", 4) == 0)
            return true;
        if (length > size - pos - 8)
            return false;
        pos += 8 + length + std::min<size_t>(4, size - pos - 8 - length);
    }
    return true;
}

bool decodeInto(QByteArrayView bytes, RowTarget &target, QSize *declared = nullptr)
{
    ReadState state;
    state.data = reinterpret_cast<const unsigned char *>(bytes.data());
    state.size = size_t(bytes.size());
    if (state.size < SignatureBytes || png_sig_cmp(state.data, 0, SignatureBytes) != 0) {
        if (target.why)
            *target.why = decodetext::noPicture();
        return false;
    }
    if (!headerChunksFit(state.data, state.size)) {
        if (target.why)
            *target.why = QStringLiteral("PNG: a chunk claims more bytes than the file holds");
        return false;
    }
    int w = 0, h = 0;
    const int r = decodeRows(state, target, w, h);
    if (declared)
        *declared = QSize(w, h);
    if (r == 0)
        return true;
    if (target.why) {
        const QSize size(w, h);
        if (r == 2)
            *target.why = decodetext::claimsTooMuch(size);
        else if (w > MaxDecodeSide || h > MaxDecodeSide)
            *target.why = decodetext::tooLarge(size);
        else if (r == 3)
            *target.why = QStringLiteral("Out of memory");
        else
            *target.why = QStringLiteral("PNG: ") + QString::fromLatin1(state.message);
    }
    if (target.image)
        *target.image = QImage();
    if (target.dib)
        target.dib->ClearUp();
    return false;
}

QByteArray readFile(const QString &file)
{
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

bool pngSize(QByteArrayView bytes, int &width, int &height)
{
    // The signature, then IHDR: length 13, "IHDR", width and height big-endian.
    if (size_t(bytes.size()) < SignatureBytes + 16 ||
        png_sig_cmp(reinterpret_cast<png_const_bytep>(bytes.data()), 0, SignatureBytes) != 0 ||
        std::memcmp(bytes.data() + 12, "IHDR", 4) != 0)
        return false;
    // Read here, not by png_get_uint_31: without a read struct that one aborts the program on a
    // value above 2^31 - 1.
    const auto w = qFromBigEndian<quint32>(bytes.data() + 16);
    const auto h = qFromBigEndian<quint32>(bytes.data() + 20);
    width = w > 0x7FFFFFFFu ? -1 : int(w);
    height = h > 0x7FFFFFFFu ? -1 : int(h);
    return true;
}

QSize pngHeaderSize(QByteArrayView bytes)
{
    int w = 0, h = 0;
    return pngSize(bytes, w, h) && w > 0 && h > 0 ? QSize(w, h) : QSize();
}

bool PNG_GetSize(const QString &file, int &width, int &height)
{
    QFile f(file);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    return pngSize(f.read(SignatureBytes + 16), width, height);
}

bool pngReadImage(QByteArrayView bytes, QImage &target, QString *why)
{
    std::vector<png_bytep> rows;
    RowTarget t;
    t.layout = RowLayout::Bgrx32;
    t.image = &target;
    t.rows = &rows;
    t.why = why;
    return decodeInto(bytes, t);
}

bool pngReadDib(QByteArrayView bytes, cDIBSection &target, QString *why)
{
    std::vector<png_bytep> rows;
    RowTarget t;
    t.layout = RowLayout::Bgr24;
    t.dib = &target;
    t.rows = &rows;
    t.why = why;
    return decodeInto(bytes, t);
}

bool PNG_Read(const QString &file, QImage &target)
{
    return pngReadImage(readFile(file), target);
}

bool PNG_ReadDIB(cDIBSection &target, const QString &file)
{
    return pngReadDib(readFile(file), target);
}

Decoded decodePng(QByteArrayView bytes, const DecodeRequest &request)
{
    int w = 0, h = 0;
    if (!pngSize(bytes, w, h))
        return Decoded::failure(decodetext::noPicture());
    const QSize stored(w, h);
    // One byte may stand for eight 1-bit pixels; the exact bound on the raw rows is checked
    // once the colour type is known.
    const QString refused = checkDeclaredSize(stored, bytes.size(), DeflateRatio * 8);
    if (!refused.isEmpty())
        return Decoded::failure(refused, stored);
    Decoded d;
    d.stored = stored;
    const QSize size = loadedSize(stored, request);
    if (request.preview && size != stored) {
        // Every n-th row and column, n the most that keeps the picture above the box.
        std::vector<png_bytep> rows;
        std::vector<png_byte> row;
        RowTarget t;
        t.layout = RowLayout::Sampled;
        t.step = std::max(1, std::min(w / std::max(1, size.width()), h / std::max(1, size.height())));
        QImage sampled;
        t.image = &sampled;
        t.rows = &rows;
        t.row = &row;
        t.why = &d.detail;
        if (decodeInto(bytes, t))
            d.image = resampledImage(sampled, size);
        return d;
    }
    if (size == stored) {
        pngReadImage(bytes, d.image, &d.detail);
        return d;
    }
    // Above the limit the rows go into a surface, which is then brought into the box.
    cDIBSection dib;
    if (pngReadDib(bytes, dib, &d.detail))
        d.image = resampledImage(dib, size);
    return d;
}

PictureMeta readPngMeta(QByteArrayView bytes)
{
    // A walk over the chunks before IDAT: no pixel is decoded.
    PictureMeta meta;
    if (size_t(bytes.size()) < SignatureBytes ||
        png_sig_cmp(reinterpret_cast<png_const_bytep>(bytes.data()), 0, SignatureBytes) != 0)
        return meta;
    const auto *p = reinterpret_cast<const unsigned char *>(bytes.data());
    size_t pos = SignatureBytes;
    const size_t end = size_t(bytes.size());
    while (end - pos >= 12) {
        const size_t length = qFromBigEndian<quint32>(p + pos);
        const QByteArrayView type(reinterpret_cast<const char *>(p + pos + 4), 4);
        if (length > end - pos - 12 || type == "IDAT" || type == "IEND")
            break;
        const char *data = reinterpret_cast<const char *>(p + pos + 8);
        if (type == "pHYs" && length == 9 && data[8] == PNG_RESOLUTION_METER) {
            meta.dpi = dpiOfDotsPerMetre(int(qFromBigEndian<quint32>(data) & 0x7FFFFFFF));
        } else if (type == "tEXt" || type == "iTXt") {
            const QByteArrayView body(data, qsizetype(length));
            const qsizetype nul = body.indexOf('\0');
            if (nul > 0) {
                const QByteArrayView key = body.first(nul);
                QString text;
                if (type == "tEXt") {
                    text = QString::fromLatin1(body.sliced(nul + 1));
                } else {
                    // keyword NUL, compression flag, method, language NUL, translated NUL, text
                    const qsizetype flags = nul + 1;
                    if (flags + 2 <= body.size() && body[flags] == 0) {
                        qsizetype at = flags + 2;
                        for (int field = 0; field < 2 && at <= body.size(); ++field) {
                            const qsizetype z = body.sliced(at).indexOf('\0');
                            at = z < 0 ? body.size() + 1 : at + z + 1;
                        }
                        if (at <= body.size())
                            text = QString::fromUtf8(body.sliced(at));
                    }
                }
                if (key == "Software")
                    meta.software = text;
                else if (key == "Recipe")
                    meta.recipe = recipeLinesOf(text);
            }
        }
        pos += length + 12;
    }
    return meta;
}

namespace {

struct WriteState {
    QIODevice *out = nullptr;
    char message[256] = {};
};

void writeBytes(png_structp png, png_bytep data, size_t n)
{
    auto *s = static_cast<WriteState *>(png_get_io_ptr(png));
    if (s->out->write(reinterpret_cast<const char *>(data), qint64(n)) != qint64(n))
        png_error(png, "the file cannot be written");
}

void flushBytes(png_structp) {}

void onWriteError(png_structp png, png_const_charp message)
{
    copyMessage(static_cast<WriteState *>(png_get_error_ptr(png))->message, message);
    png_longjmp(png, 1);
}

// The text chunks of a picture, kept alive while libpng writes them.
struct TextChunks {
    QByteArray softwareKey = "Software", software, recipeKey = "Recipe", recipe, empty;
    png_text chunks[2]{};
    int count = 0;

    explicit TextChunks(const PictureMeta &meta)
    {
        software = (meta.software.isEmpty() ? softwareText() : meta.software).toLatin1();
        chunks[0].compression = PNG_TEXT_COMPRESSION_NONE;
        chunks[0].key = softwareKey.data();
        chunks[0].text = software.data();
        chunks[0].text_length = size_t(software.size());
        count = 1;
        if (!meta.recipe.isEmpty()) {
            recipe = meta.recipe.join(QLatin1Char('\n')).toUtf8();
            chunks[1].compression = PNG_ITXT_COMPRESSION_NONE;
            chunks[1].key = recipeKey.data();
            chunks[1].text = recipe.data();
            chunks[1].itxt_length = size_t(recipe.size());
            chunks[1].lang = empty.data();
            chunks[1].lang_key = empty.data();
            count = 2;
        }
    }
};

int writeRows(WriteState &state, const EncodeRows &source, int dpi, TextChunks &texts,
              std::vector<png_bytep> &rows)
{
    png_structp png = png_create_write_struct(png_get_libpng_ver(nullptr), &state, onWriteError,
                                              onWarning);
    if (!png)
        return 1;
    png_infop info = png_create_info_struct(png);
    if (!info) {
        png_destroy_write_struct(&png, nullptr);
        return 1;
    }
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        return 1;
    }
    png_set_write_fn(png, &state, writeBytes, flushBytes);
    const int w = source.width, h = source.height;
    png_set_IHDR(png, info, png_uint_32(w), png_uint_32(h), 8, PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_color_8 bits{};
    bits.red = bits.green = bits.blue = 8;
    png_set_sBIT(png, info, &bits);
    if (dpi > 0) {
        const auto dpm = png_uint_32(dotsPerMetre(dpi));
        png_set_pHYs(png, info, dpm, dpm, PNG_RESOLUTION_METER);
    }
    png_set_text(png, info, texts.chunks, texts.count);
    png_write_info(png, info);
    png_set_bgr(png);
    if (source.bytesPerPixel == 4)
        png_set_filler(png, 0, PNG_FILLER_AFTER);
    png_write_image(png, rows.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return 0;
}

} // namespace

bool SavePNG(const EncodeRows &source, QIODevice &out, const PictureMeta &meta, QString *why)
{
    if (source.empty()) {
        if (why)
            *why = QStringLiteral("PNG: no picture");
        return false;
    }
    std::vector<png_bytep> rows(static_cast<size_t>(source.height));
    for (int y = 0; y < source.height; ++y)
        rows[size_t(y)] = const_cast<png_bytep>(source.row(y));
    TextChunks texts(meta);
    WriteState state;
    state.out = &out;
    if (writeRows(state, source, meta.dpi, texts, rows) == 0)
        return true;
    if (why)
        *why = QStringLiteral("PNG: ") + QString::fromLatin1(state.message);
    return false;
}

bool SavePNG(const cDIBSection &source, QIODevice &out, const PictureMeta &meta, QString *why)
{
    return SavePNG(EncodeRows::of(source), out, meta, why);
}

bool SavePNG(const QImage &source, QIODevice &out, const PictureMeta &meta, QString *why)
{
    return SavePNG(EncodeRows::of(source), out, meta, why);
}

} // namespace tf
