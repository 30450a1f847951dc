#ifndef IOSPHOTO_TOOL_JSON_BUFFER_H
#define IOSPHOTO_TOOL_JSON_BUFFER_H

#include <rapidjson/stringbuffer.h>

#include <ostream>

namespace iosphoto::tool {

/// Prints what a RapidJSON writer has put into the buffer so far; the writer goes on with it.
inline void flush(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    out.write(buffer.GetString(), static_cast<std::streamsize>(buffer.GetSize()));
    buffer.Clear();
}

/// The same, once it is worth it.
inline void flushWhenFull(rapidjson::StringBuffer &buffer, std::ostream &out)
{
    constexpr std::size_t full = 1 << 16;
    if (buffer.GetSize() >= full)
        flush(buffer, out);
}

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_JSON_BUFFER_H
