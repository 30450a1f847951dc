/// @file
/// Thumbnail caches (`.ithmb`), step by step: which format a file has, how many thumbnails it
/// holds, one thumbnail as a BMP image. A host that only shows thumbnails needs
/// ios_photo_get_thumb() of ios_photo.h and not this header.
///
/// A cache is a flat sequence of records of one size, a thumbnail each, without a file header;
/// record i starts at byte i * record size. Seven formats are known, named after the side of their
/// pictures in pixels:
///
///     format               78     120     125     128     157     158     166
///     record, bytes     12508   28828   32028   32796   50268   50588   55804
///
/// A record ends in a trailer whose last twelve bytes are three little-endian words: width and
/// height of the thumbnail in pixels, and 0. It is plausible when width and height are 1 to 254 and
/// the third word is 0.
///
/// Files are only read, and only these bytes of them. Nothing is thrown, whatever a file holds.
/// Offsets of detection and decoding are 32-bit and wrap: an index whose record would start beyond
/// 2 GiB gives nothing or, wrapped round, another record. Callers keep below the number of records.
///
/// Threads: the functions share nothing; an ifile serves one thread at a time.
#ifndef IOSPHOTO_ITHMB_H
#define IOSPHOTO_ITHMB_H

#include "iosphoto_export.h"

#include <cstdio>

/// A file that is being read. Owns its handle.
class IOSPHOTO_EXPORT ifile
{
public:
    /// Opens a regular file. Anything else (nothing there, no permission, a folder, a pipe, a null
    /// pointer) leaves the handle null: is_open() tells, and the other operations fail.
    explicit ifile(char const *path);
    ~ifile();
    ifile(const ifile &) = delete;
    ifile &operator=(const ifile &) = delete;

    bool is_open() const;

    /// Moves to `offset` bytes from the start of the file, which may be beyond its end.
    /// @return 0, or something else on failure, a negative offset among them
    int seekg(long offset);

    /// Reads `count` bytes into `buffer`.
    /// @return whether all of them were there; if not, the buffer may hold the first of them
    bool read(char *buffer, int count);

    /// Length of the file in bytes; -1 on failure. Moves to the start of the file.
    long getlength();

    /// Closes the file before the object goes.
    /// @return what fclose returned; 0 where nothing was open
    int close();

private:
    std::FILE *handle_;
};

/// Whether a plausible trailer ends at byte `endOffset` of the file.
IOSPHOTO_EXPORT bool detect_type(int endOffset, ifile &file);

/// The format of a cache, judged by the trailer of record `index`: its number, or 0 when the record
/// has a plausible trailer in none. Where it has one in several formats, the last of 78, 120, 157,
/// 125, 158, 128, 166 counts.
IOSPHOTO_EXPORT int detect_ithmb_size(ifile &file, int index);

/// Counts the records, of `recordSize` bytes, that are not empty, from record 1 on: record 0 is
/// never looked at. A record is empty when its first 12 bytes are 0, and so is all that lies beyond
/// the end of the file; 17 empty records in a row end the count.
///
/// @param lastIndex  [out] index of the last of those 17. With a record size below 1 no record has
///                   content: the count is 0 and the last index 17.
IOSPHOTO_EXPORT int estimate_count(int recordSize, ifile &file, int &lastIndex);

/// Opens a cache, finds its format by record 2 and counts as estimate_count() does.
///
/// @param lastIndex  [out] as there; left alone when nothing is counted
/// @return the count; 0 when the file cannot be opened, when its format is not found, and for
///         formats 125 and 128, which are not counted
IOSPHOTO_EXPORT int get_bmp_count(char const *path, int &lastIndex);

/// Decodes record `index` of a cache, in the format that detect_ithmb_size() finds for that record;
/// otherwise as the functions below.
///
/// Mind the order of the last three arguments: ios_photo_get_thumb() has another.
/// @return 0, also when there was nothing to decode; else what fclose returned
IOSPHOTO_EXPORT int GetBmp(char const *path, int index, char *buffer, int &size, int &width,
                           int &height);

/// @name Decoders
/// Each writes record `index` of a cache of its format as a complete BMP image, 16 bits a pixel
/// with 5-5-5 masks, bottom-up. Pixels pass through unchanged.
///
/// The picture is as wide and high as the format's name says, whatever part of it the thumbnail
/// fills; that of format 120 is exactly the thumbnail, cut out of the middle of its record.
///
/// What a truncated record lacks is black, and without a trailer its width and height are 0; so is
/// all of a record that would start right at the end of the file. Nothing is written, and the last
/// three arguments keep their values, when the file is not open, when the buffer is a null pointer,
/// when the record starts beyond the end of the file or at a negative offset, and for a thumbnail
/// of format 120 that is higher than 120 pixels, reaches out of its record, or is larger than
/// 55,178 bytes as an image.
///
/// @param buffer  the caller's; 55,178 bytes are enough for every format. Only the bytes of the
///                image are written.
/// @param size    [out] bytes of the image with its header, which is 66 bytes. The sizes that the
///                headers of formats 78, 125 and 128 state are those of other formats.
/// @param width   [out] of the thumbnail as the trailer says it, in pixels
/// @param height  [out] likewise
/// @{
IOSPHOTO_EXPORT void get_bmp_from_ithmb_78(ifile &file, int index, char *buffer, int &size,
                                           int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_120(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_125(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_128(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_157(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_158(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
IOSPHOTO_EXPORT void get_bmp_from_ithmb_166(ifile &file, int index, char *buffer, int &size,
                                            int &width, int &height);
/// @}

#endif // IOSPHOTO_ITHMB_H
