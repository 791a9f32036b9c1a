#pragma once

/// In front of a function whose loops are much of the card's thread's work: it is compiled for wider registers as well,
/// and the version that fits the processor is chosen when the program starts. Both give the same sound to the last bit.
/// The sanitizers aren't ready yet at that moment, and the code checker's compiler wants it on declarations too.
#if defined(__x86_64__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define LYREBROOK_WIDE_LOOPS [[gnu::target_clones("avx2", "default")]]
#else
#define LYREBROOK_WIDE_LOOPS
#endif
