#ifndef IOSPHOTO_TOOL_SHA256_H
#define IOSPHOTO_TOOL_SHA256_H

#include <cstddef>
#include <memory>
#include <string>

namespace iosphoto::tool {

/// The SHA-256 of bytes that come piece by piece.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Sha256(const Sha256 &) = delete;
    Sha256 &operator=(const Sha256 &) = delete;

    void add(const char *bytes, std::size_t size);

    /// Of all so far, as 64 digits. More may follow.
    std::string digits() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SHA256_H
