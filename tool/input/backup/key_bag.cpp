#include "input/backup/key_bag.h"

#include "cipher/key_wrap.h"
#include "input/backup/key_bag_parts.h"
#include "input/source_problem.h"

#include <numeric>

namespace iosphoto::tool {

namespace {

KeyDerivation derivation(const KeyBagParts &bag, const std::string &shownName,
                         KeyDerivation::Hash hash, const std::string &saltTag,
                         const std::string &roundsTag)
{
    const std::uint32_t rounds = bag.number(roundsTag);
    if (rounds == 0 || rounds > KeyBag::mostRounds)
        throw SourceError(
            SourceProblem::KeyBagHasOddRounds,
            {shownName, roundsTag, std::to_string(rounds), std::to_string(KeyBag::mostRounds)});
    return {hash, bag.bytes(saltTag), rounds};
}

/// Since iOS 10.2 there are two, the first of which takes long.
std::vector<KeyDerivation> derivationsOf(const KeyBagParts &bag, const std::string &shownName)
{
    using Hash = KeyDerivation::Hash;
    std::vector<KeyDerivation> derivations;
    if (bag.has("DPSL") || bag.has("DPIC"))
        derivations.push_back(derivation(bag, shownName, Hash::Sha256, "DPSL", "DPIC"));
    derivations.push_back(derivation(bag, shownName, Hash::Sha1, "SALT", "ITER"));
    return derivations;
}

/// Which keys one is wrapped in.
enum WrappedIn : std::uint32_t { KeyOfDevice = 1 };

} // namespace

void ClassKeys::add(std::uint32_t protectionClass, Secret key)
{
    keys_[protectionClass] = std::move(key);
}

std::optional<Secret> ClassKeys::open(const WrappedKey &key) const
{
    const auto found = keys_.find(key.protectionClass);
    return found != keys_.end() ? unwrapped(key.bytes, found->second) : std::nullopt;
}

KeyBag::KeyBag(std::string_view bytes, const std::string &shownName)
{
    const std::vector<KeyBagParts> parts = partsOf(bytes, shownName);
    derivations_ = derivationsOf(parts.front(), shownName);
    std::set<std::uint32_t> classes;
    for (auto each = parts.begin() + 1; each != parts.end(); ++each) {
        const std::uint32_t protectionClass = each->number("CLAS");
        if (!classes.insert(protectionClass).second)
            throw SourceError(SourceProblem::KeyBagRepeats,
                              {shownName, "CLAS " + std::to_string(protectionClass)});
        const std::string &key = each->bytes("WPKY");
        if ((each->number("WRAP") & KeyOfDevice) != 0)
            ofDevice_.insert(protectionClass);
        else if (key.size() == wrappedKeySize)
            classKeys_.push_back({protectionClass, key});
        else
            throw SourceError(
                SourceProblem::KeyBagHasOddPart,
                {shownName, "WPKY", std::to_string(key.size()), std::to_string(wrappedKeySize)});
    }
    if (classKeys_.empty())
        throw SourceError(SourceProblem::KeyBagLacks, {shownName, "WPKY"});
}

std::uint64_t KeyBag::rounds() const
{
    return std::accumulate(
        derivations_.begin(), derivations_.end(), std::uint64_t{0},
        [](std::uint64_t sum, const KeyDerivation &each) { return sum + each.rounds; });
}

std::optional<ClassKeys> KeyBag::unlock(const Secret &password) const
{
    Secret key = password.clone();
    for (const KeyDerivation &derivation : derivations_)
        key = derivation.keyOf(key);
    ClassKeys keys(ofDevice_);
    for (const WrappedKey &each : classKeys_)
        if (auto opened = unwrapped(each.bytes, key))
            keys.add(each.protectionClass, std::move(*opened));
    if (keys.isEmpty())
        return std::nullopt;
    return keys;
}

} // namespace iosphoto::tool
