#include "input/backup/unlocking.h"

#include "input/source_problem.h"
#include "terminal/busy_line.h"
#include "text/translate.h"

namespace iosphoto::tool {

namespace {

std::optional<Secret> passwordOf(Session &session, const std::string &backup, int attempt)
{
    return session.passwords != nullptr ? session.passwords->passwordOf(backup, attempt)
                                        : std::nullopt;
}

} // namespace

Unlocking::Unlocking(Session &session, KeyBag keyBag, std::string backup)
    : session_(session), keyBag_(std::move(keyBag)), backup_(std::move(backup))
{
    auto password = passwordOf(session_, backup_, attempts_);
    if (!password)
        throw SourceError(SourceProblem::EncryptedBackup, {backup_});
    begin(std::move(*password));
}

void Unlocking::begin(Secret password)
{
    ++attempts_;
    keys_ = std::async(std::launch::async,
                       [this, password = std::move(password)] { return keyBag_.unlock(password); });
}

ClassKeys Unlocking::finish()
{
    while (true) {
        auto keys = [this] {
            const BusyLine busy(session_.terminal, translate("trying the password of the backup"));
            return keys_.get();
        }();
        if (keys)
            return std::move(*keys);
        auto next = passwordOf(session_, backup_, attempts_);
        if (!next)
            throw SourceError(SourceProblem::WrongPassword, {backup_});
        begin(std::move(*next));
    }
}

} // namespace iosphoto::tool
