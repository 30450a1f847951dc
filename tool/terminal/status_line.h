#ifndef IOSPHOTO_TOOL_STATUS_LINE_H
#define IOSPHOTO_TOOL_STATUS_LINE_H

#include "terminal/terminal.h"

#include <string>

namespace iosphoto::tool {

/// A line on stderr that is written over and over, and cleared when the object goes. Only on a
/// terminal that is not to be quiet.
class StatusLine
{
public:
    /// @param terminal  has to outlive the line
    explicit StatusLine(const Terminal &terminal);
    ~StatusLine();
    StatusLine(const StatusLine &) = delete;
    StatusLine &operator=(const StatusLine &) = delete;

    /// Whether somebody sees it; otherwise show() is not to be called.
    bool isSeen() const { return isSeen_; }
    /// The columns that it may take. The last one of a terminal stays free.
    std::size_t columns() const;

    void show(const std::string &text);

private:
    const Terminal &terminal_;
    bool isSeen_;
    bool isShown_ = false;
};

/// Clears whatever such a line shows now, before last words.
void clearStatusLine(const Terminal &terminal);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STATUS_LINE_H
