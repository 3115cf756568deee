// Mirrors the macOS SDK's <os/log.h> as src/platform/macos uses it, for a syntax check only
// (scripts/check-macos-compile). Declarations only; nothing here is linked. The SDK's macros also
// place the format string in a section of its own; what a caller sees is the same: the format
// must be a string literal, checked with clang's os_log format rules (privacy annotations such as
// `%{public}s` included), followed by any number of arguments.
#pragma once

#include <stdint.h>

#if defined(__OBJC__)
#include <Foundation/Foundation.h>
// <os/object.h>: in Objective-C, os objects are Objective-C objects.
@protocol OS_os_log <NSObject>
@end
typedef NSObject<OS_os_log>* os_log_t;
#if __has_feature(objc_arc)
#define OS_OBJECT_BRIDGE __bridge
#else
#define OS_OBJECT_BRIDGE
#endif
#else
typedef struct os_log_s* os_log_t;
#define OS_OBJECT_BRIDGE
#endif

typedef enum : uint8_t {
  OS_LOG_TYPE_DEFAULT = 0x00,
  OS_LOG_TYPE_INFO = 0x01,
  OS_LOG_TYPE_DEBUG = 0x02,
  OS_LOG_TYPE_ERROR = 0x10,
  OS_LOG_TYPE_FAULT = 0x11,
} os_log_type_t;

#ifdef __cplusplus
extern "C" {
#endif

struct os_log_s;
struct mach_header;
extern struct os_log_s _os_log_default;
extern struct mach_header __dso_handle;

// macOS 10.12
os_log_t os_log_create(const char* subsystem, const char* category);
bool os_log_type_enabled(os_log_t oslog, os_log_type_t type);
void _os_log_impl(void* dso, os_log_t log, os_log_type_t type, const char* format, uint8_t* buf,
                  uint32_t size);

#ifdef __cplusplus
}
#endif

#define OS_LOG_DEFAULT ((OS_OBJECT_BRIDGE os_log_t)(&_os_log_default))

#define OS_LOG_REMOVE_PARENS(...) __VA_ARGS__
#define OS_LOG_CALL_WITH_FORMAT(fun, fun_args, fmt, ...)                         \
  __extension__({                                                                \
    static const char _os_fmt_str[] = fmt;                                       \
    uint8_t _os_fmt_buf[__builtin_os_log_format_buffer_size(fmt, ##__VA_ARGS__)] \
        __attribute__((aligned(16)));                                            \
    fun(OS_LOG_REMOVE_PARENS fun_args, _os_fmt_str,                              \
        (uint8_t*)__builtin_os_log_format(_os_fmt_buf, fmt, ##__VA_ARGS__),      \
        (uint32_t)sizeof(_os_fmt_buf));                                          \
  })

#define os_log_with_type(log, type, format, ...)                                                 \
  __extension__({                                                                                \
    os_log_t _log_tmp = (log);                                                                   \
    os_log_type_t _type_tmp = (type);                                                            \
    if (os_log_type_enabled(_log_tmp, _type_tmp)) {                                              \
      OS_LOG_CALL_WITH_FORMAT(_os_log_impl, ((void*)&__dso_handle, _log_tmp, _type_tmp), format, \
                              ##__VA_ARGS__);                                                    \
    }                                                                                            \
  })

#define os_log(log, format, ...) os_log_with_type(log, OS_LOG_TYPE_DEFAULT, format, ##__VA_ARGS__)
#define os_log_error(log, format, ...) \
  os_log_with_type(log, OS_LOG_TYPE_ERROR, format, ##__VA_ARGS__)
