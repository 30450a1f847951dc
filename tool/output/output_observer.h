#ifndef IOSPHOTO_TOOL_OUTPUT_OBSERVER_H
#define IOSPHOTO_TOOL_OUTPUT_OBSERVER_H

#include <QByteArray>

#include <cstddef>
#include <filesystem>

namespace iosphoto::tool {

/// Is told of all output of the command while it lives. One at a time.
class OutputObserver
{
public:
    OutputObserver();
    virtual ~OutputObserver();
    OutputObserver(const OutputObserver &) = delete;
    OutputObserver &operator=(const OutputObserver &) = delete;

    /// May throw, and so keep the file from being written.
    virtual void willWrite(const std::filesystem::path &file) = 0;
    virtual void wrote(const std::filesystem::path &file, const QByteArray &content) = 0;
    /// On standard output.
    virtual void printed(const char *bytes, std::size_t size) = 0;

    /// The one there is, or null.
    static OutputObserver *current();

protected:
    void stopObserving();
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_OUTPUT_OBSERVER_H
