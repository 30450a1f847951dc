#include "ithmb/ithmb.h"
#include "ithmb/thumb_decode.h"

using namespace iosphoto;

int GetBmp(char const *path, int index, char *buffer, int &size, int &width, int &height)
{
    ifile file(path);
    if (const ThumbFormat *format = findThumbFormat(detect_ithmb_size(file, index)))
        decodeThumb(*format, file, index, buffer, size, width, height);
    return file.close();
}

void get_bmp_from_ithmb_78(ifile &file, int index, char *buffer, int &size, int &width, int &height)
{
    decodeThumb(thumbFormat<78>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_120(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<120>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_125(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<125>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_128(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<128>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_157(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<157>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_158(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<158>, file, index, buffer, size, width, height);
}

void get_bmp_from_ithmb_166(ifile &file, int index, char *buffer, int &size, int &width,
                            int &height)
{
    decodeThumb(thumbFormat<166>, file, index, buffer, size, width, height);
}
