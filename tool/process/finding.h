#ifndef IOSPHOTO_TOOL_FINDING_H
#define IOSPHOTO_TOOL_FINDING_H

#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace iosphoto::tool {

/// Something that has to be said to a person, without the words for it: what it is, and the names
/// and numbers that belong to it. The commands find the words, as they know what a person can do.
template <typename Kind>
struct Finding
{
    Kind kind;
    std::vector<std::string> facts;
};

/// Ends a command because of a finding.
template <typename Kind>
class FindingError : public std::exception
{
public:
    FindingError(Kind kind, std::vector<std::string> facts) : finding_{kind, std::move(facts)} {}

    const Finding<Kind> &finding() const { return finding_; }
    const char *what() const noexcept override { return "a finding without words"; }

private:
    Finding<Kind> finding_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_FINDING_H
