#ifndef IOSPHOTO_TOOL_UNLOCKING_H
#define IOSPHOTO_TOOL_UNLOCKING_H

#include "input/backup/key_bag.h"
#include "session/session.h"

#include <future>
#include <optional>
#include <string>

namespace iosphoto::tool {

/// Tries passwords on the key bag of a backup, the first one in the background, as each takes
/// seconds: meanwhile others can be begun.
class Unlocking
{
public:
    /// Begins, and stays where it is. Throws SourceError when there is no password.
    /// @param backup  as messages name it
    Unlocking(Session &session, KeyBag keyBag, std::string backup);

    Unlocking(const Unlocking &) = delete;
    Unlocking &operator=(const Unlocking &) = delete;

    /// Waits for the keys. Throws SourceError when no password is the right one.
    ClassKeys finish();

private:
    void begin(Secret password);

    Session &session_;
    KeyBag keyBag_;
    std::string backup_;
    int attempts_ = 0;
    std::future<std::optional<ClassKeys>> keys_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_UNLOCKING_H
