#pragma once
// Channel bytes of RGB32 rows through tables of 256 entries, 64 bytes at a time through the
// byte permutations of the processors that have them (AVX-512 VBMI): a table sits in four
// vector registers, and a look-up of 64 bytes is two permutations and a blend, where the
// plain loop spends a load on every byte.

#include <QtGlobal>

namespace tf {

// What becomes of a pixel's unused byte.
enum class UnusedByte { Keep, Opaque, Zero };

// Whether this processor has the instructions; without them mapChannelsWide does nothing.
bool haveWideByteTables();

// `w` pixels from `src` to `dst` (which may be `src`): blue through `tb`, green through `tg`,
// red through `tr`. Answers the pixels done: all of them, or 0 without the instructions (the
// caller then maps them with its own loop).
int mapChannelsWide(const uchar *src, uchar *dst, int w, const uchar *tb, const uchar *tg,
                    const uchar *tr, UnusedByte unused);

// The same with one table for all three channels and a second table of flags: bit k of
// `flagged` (blocks of 64 bits, (w + 1023) / 1024 of them) is set when a blue, green or red
// value of pixels 16k .. 16k+15 has a flag other than 0, so that the caller can work out
// those pixels again. Answers the pixels done, as mapChannelsWide.
int mapChannelsWideFlagged(const uchar *src, uchar *dst, int w, const uchar *table,
                           const uchar *flags, UnusedByte unused, quint64 *flagged);

} // namespace tf
