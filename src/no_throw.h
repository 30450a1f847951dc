#ifndef IOSPHOTO_NO_THROW_H
#define IOSPHOTO_NO_THROW_H

namespace iosphoto {

/// The result of an operation that ran out of memory: SQLITE_NOMEM, negated as every failure is.
constexpr int outOfMemory = -7;

/// Runs `body`, which returns a result code, for an operation that a host calls: hosts are promised
/// codes, not exceptions, and lack of memory is the only thing that makes our code throw.
template <typename Body>
int withoutThrowing(Body body) noexcept
{
    try {
        return body();
    } catch (...) {
        return outOfMemory;
    }
}

} // namespace iosphoto

#endif // IOSPHOTO_NO_THROW_H
