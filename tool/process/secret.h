#ifndef IOSPHOTO_TOOL_SECRET_H
#define IOSPHOTO_TOOL_SECRET_H

#include <cstddef>
#include <memory>
#include <string_view>

namespace iosphoto::tool {

/// A password or key. Its memory is kept out of swap and core dumps as far as the system allows
/// that, and is wiped when it goes. It can be moved, and copied on purpose only.
class Secret
{
public:
    Secret() : Secret(0) {}
    /// Zeros, to be filled in.
    explicit Secret(std::size_t size);
    explicit Secret(std::string_view bytes);

    unsigned char *data() { return bytes_.get(); }
    const unsigned char *data() const { return bytes_.get(); }
    std::size_t size() const { return size_; }
    bool isEmpty() const { return size_ == 0; }

    Secret clone() const { return Secret(view()); }
    std::string_view view() const { return {reinterpret_cast<const char *>(bytes_.get()), size_}; }

private:
    struct Wipe
    {
        std::size_t size = 0;
        void operator()(unsigned char *bytes) const;
    };

    std::size_t size_;
    std::unique_ptr<unsigned char, Wipe> bytes_;
};

/// Overwrites bytes that a secret was copied from, even where nobody reads them any more.
void wipe(void *bytes, std::size_t size);

/// Reserves memory for secrets that stays out of swap, and keeps the process from leaving its own
/// on disk when it crashes, and others from reading it. To be called before the first secret is
/// there.
void guardSecrets();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_SECRET_H
