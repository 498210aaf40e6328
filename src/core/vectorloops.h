#pragma once
// Marks for pixel loops that the compiler should turn into vector code.
//
// TF_VECTOR_CLONES gives a loop a second copy in the wider vector instructions of the
// processors that have them; the program picks the copy once at start. TF_VECTOR_LOOP adds
// the compiler's full weighing of vector code to that: the cheap weighing of the usual
// optimisation leaves loops over 3-byte pixels (a bitmap's rows) as single bytes, which run at
// half the speed.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && defined(__linux__)
#define TF_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#define TF_VECTOR_LOOP __attribute__((target_clones("avx2", "default"), optimize("vect-cost-model=dynamic")))
#else
#define TF_VECTOR_CLONES
#define TF_VECTOR_LOOP
#endif
