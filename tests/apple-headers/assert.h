// Without a guard, as every such header: it follows NDEBUG.
#include_next <assert.h>

#ifndef NDEBUG
extern "C" [[noreturn]] void __assert_rtn(const char* function, const char* file, int line,
                                          const char* expression);
#undef assert
#define assert(expression)                                                                         \
    ((expression) ? (void)0 : __assert_rtn(__func__, __FILE__, __LINE__, #expression))
#endif
