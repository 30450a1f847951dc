/// @file
/// Marks what the library exports. Included by its other headers.
#ifndef IOSPHOTO_EXPORT_H
#define IOSPHOTO_EXPORT_H

#if defined(__GNUC__)
#define IOSPHOTO_EXPORT __attribute__((visibility("default")))
#else
#define IOSPHOTO_EXPORT
#endif

#endif // IOSPHOTO_EXPORT_H
