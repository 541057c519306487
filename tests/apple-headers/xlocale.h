#pragma once

// What the C++ library's headers take from here; the rest comes with the C library's own headers.

#include <ctype.h>
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <wchar.h>
#include <wctype.h>

// Here functions, which take 0 for the C locale.
#undef isdigit_l
#undef isxdigit_l
#undef tolower_l
#undef toupper_l

extern "C" {
lconv* localeconv_l(locale_t locale);
int asprintf_l(char** result, locale_t locale, const char* format, ...);
int snprintf_l(char* result, size_t size, locale_t locale, const char* format, ...);
int sscanf_l(const char* text, locale_t locale, const char* format, ...);
wint_t btowc_l(int c, locale_t locale);
int wctob_l(wint_t c, locale_t locale);
size_t wcsnrtombs_l(char* result, const wchar_t** text, size_t count, size_t size, mbstate_t* state,
                    locale_t locale);
size_t wcrtomb_l(char* result, wchar_t c, mbstate_t* state, locale_t locale);
size_t mbsnrtowcs_l(wchar_t* result, const char** text, size_t count, size_t size, mbstate_t* state,
                    locale_t locale);
size_t mbrtowc_l(wchar_t* result, const char* text, size_t size, mbstate_t* state, locale_t locale);
int mbtowc_l(wchar_t* result, const char* text, size_t size, locale_t locale);
size_t mbrlen_l(const char* text, size_t size, mbstate_t* state, locale_t locale);
size_t mbsrtowcs_l(wchar_t* result, const char** text, size_t size, mbstate_t* state,
                   locale_t locale);
int ___mb_cur_max_l(locale_t locale);
}
#define MB_CUR_MAX_L(locale) ___mb_cur_max_l(locale)
