#pragma once

// Marks what the library exports. The windowless core is also linked statically into tests and benchmarks.
#if !defined(_WIN32) || defined(ZOPWNT_STATIC)
#define ZOPWNT_API
#elif defined(ZOPWNT_EXPORTS)
#define ZOPWNT_API __declspec(dllexport)
#else
#define ZOPWNT_API __declspec(dllimport)
#endif
