#ifndef IOSPHOTO_TOOL_KEY_BAG_H
#define IOSPHOTO_TOOL_KEY_BAG_H

#include "cipher/key_derivation.h"
#include "process/secret.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace iosphoto::tool {

/// A key that only that of a protection class opens. The phone gives each file a class, by when its
/// content may be read.
struct WrappedKey
{
    std::uint32_t protectionClass;
    std::string bytes;
};

/// The keys of the protection classes.
class ClassKeys
{
public:
    /// @param ofDevice  classes whose keys are wrapped in one that never leaves the phone too, so
    ///                  that no password opens them
    explicit ClassKeys(std::set<std::uint32_t> ofDevice) : ofDevice_(std::move(ofDevice)) {}

    void add(std::uint32_t protectionClass, Secret key);

    bool isEmpty() const { return keys_.empty(); }
    bool has(std::uint32_t protectionClass) const { return keys_.count(protectionClass) != 0; }
    bool isOfDevice(std::uint32_t protectionClass) const
    {
        return ofDevice_.count(protectionClass) != 0;
    }

    /// The key that is wrapped. Nothing when there is none of its class, or it is damaged.
    std::optional<Secret> open(const WrappedKey &key) const;

private:
    std::set<std::uint32_t> ofDevice_;
    std::map<std::uint32_t, Secret> keys_;
};

/// The keys of an encrypted backup as it holds them: wrapped in one that is made of its password.
class KeyBag
{
public:
    /// What a derivation may take at most. Phones ask for some ten million.
    static constexpr std::uint32_t mostRounds = 100'000'000;

    /// Throws SourceError when it is damaged, or asks for more rounds than that.
    /// @param bytes      parts, each with a name of four letters and its length
    /// @param shownName  the file that it stands in, for messages
    KeyBag(std::string_view bytes, const std::string &shownName);

    /// How long it takes to try a password.
    std::uint64_t rounds() const;

    /// As ClassKeys have them.
    const std::set<std::uint32_t> &classesOfDevice() const { return ofDevice_; }

    /// The keys; nothing when the password is wrong. May take seconds, and any thread.
    std::optional<ClassKeys> unlock(const Secret &password) const;

private:
    std::vector<KeyDerivation> derivations_; ///< each makes the password of the next one
    std::vector<WrappedKey> classKeys_;
    std::set<std::uint32_t> ofDevice_; ///< classes
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_KEY_BAG_H
