// Linked into a test program, it ends the program when anything inside a RealTimeScope takes or gives back memory or
// locks a mutex. With a sanitizer the memory functions are the sanitizer's, which offers hooks instead.

#include <dlfcn.h>
#include <pthread.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <string_view>

#include "platform/sound/RealTimeScope.h"

namespace {

/// `write` needs neither memory nor a lock, so the trap can't fall into itself.
void refuseInRealTime(std::string_view what) noexcept {
    if (!lyrebrook::RealTimeScope::active()) return;
    constexpr std::string_view where = " on the card's thread\n";
    for (const std::string_view part : {what, where}) {
        if (write(STDERR_FILENO, part.data(), part.size()) < 0) break;
    }
    std::abort();
}

}  // namespace

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

void onMalloc(const volatile void*, std::size_t) {
    refuseInRealTime("malloc");
}

void onFree(const volatile void*) {
    refuseInRealTime("free");
}

const int hooks = __sanitizer_install_malloc_and_free_hooks(onMalloc, onFree);

}  // namespace

#else

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void __libc_free(void* memory);

void* malloc(std::size_t size) {
    refuseInRealTime("malloc");
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    refuseInRealTime("calloc");
    return __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) {
    refuseInRealTime("realloc");
    return __libc_realloc(memory, size);
}

void free(void* memory) {
    refuseInRealTime("free");
    __libc_free(memory);
}

}  // extern "C"

#endif

extern "C" int pthread_mutex_lock(pthread_mutex_t* mutex) noexcept {
    using Lock = int (*)(pthread_mutex_t*);
    refuseInRealTime("pthread_mutex_lock");
    static const auto lock = reinterpret_cast<Lock>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    return lock(mutex);
}
