#include "sqlite/write_ahead_log.h"

#include "formats/big_endian.h"

#include <cstdint>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>

namespace iosphoto::tool {

namespace {

constexpr std::size_t saltSize = 4; // there are two

/// Where the parts of the header are.
namespace header {
constexpr std::size_t magic = 0;
constexpr std::uint32_t magicNumber = 0x377f0682; ///< or one more
constexpr std::size_t pageSize = 8;
constexpr std::size_t salts = 16;
constexpr std::size_t sum = 24;
constexpr std::size_t size = 32;
} // namespace header

/// Where those of each frame are; the page follows.
namespace frame {
constexpr std::size_t pageNumber = 0;
constexpr std::size_t commit = 4; ///< 0 but in the last frame of a commit
constexpr std::size_t salts = 8;
constexpr std::size_t sum = 16;
constexpr std::size_t size = 24;
} // namespace frame

std::uint32_t bigEndian(std::string_view bytes, std::size_t at)
{
    return static_cast<std::uint32_t>(tool::bigEndian(bytes.substr(at, sizeof(std::uint32_t))));
}

/// The sum that goes on from the header through all frames.
class Checksum
{
public:
    explicit Checksum(bool isBigEndian = false)
        : isSwapped_(isBigEndian == (__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__))
    {
    }

    void add(std::string_view bytes)
    {
        isSwapped_ ? addWords<true>(bytes) : addWords<false>(bytes);
    }

    /// Goes on from a sum that is stored.
    void goOnFrom(std::string_view bytes, std::size_t at)
    {
        first_ = bigEndian(bytes, at);
        second_ = bigEndian(bytes, at + 4);
    }

    bool isAt(std::string_view bytes, std::size_t at) const
    {
        return bigEndian(bytes, at) == first_ && bigEndian(bytes, at + 4) == second_;
    }

private:
    template <bool isSwapped>
    void addWords(std::string_view bytes)
    {
        for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
            first_ += word<isSwapped>(bytes, at) + second_;
            second_ += word<isSwapped>(bytes, at + 4) + first_;
        }
    }

    /// Logs may have gigabytes.
    template <bool isSwapped>
    static std::uint32_t word(std::string_view bytes, std::size_t at)
    {
        std::uint32_t word = 0;
        std::memcpy(&word, bytes.data() + at, sizeof word);
        return isSwapped ? __builtin_bswap32(word) : word;
    }

    bool isSwapped_; ///< whether the words are stored in the other order than this machine's
    std::uint32_t first_ = 0;
    std::uint32_t second_ = 0;
};

/// Fills `bytes`, which become fewer where the file ends before.
void read(std::istream &file, std::string &bytes)
{
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
}

constexpr std::uint32_t smallestPage = 512;
constexpr std::uint32_t largestPage = 65536;

bool isPageSize(std::uint32_t size)
{
    return size >= smallestPage && size <= largestPage && (size & (size - 1)) == 0;
}

bool hasMagic(std::string_view head)
{
    return head.size() == header::size &&
           (bigEndian(head, header::magic) & ~1U) == header::magicNumber;
}

/// Goes through the frames of a log one by one, as SQLite does before it applies them, and on
/// behind the first that is not good, where SQLite stops.
class FrameWalk
{
public:
    /// Whether the header is one. The frames follow it.
    bool begin(std::string_view head)
    {
        if (!hasMagic(head) || !isPageSize(bigEndian(head, header::pageSize)))
            return false;
        frameSize_ = frame::size + bigEndian(head, header::pageSize);
        salts_ = head.substr(header::salts, 2 * saltSize);
        sum_ = Checksum((bigEndian(head, header::magic) & 1U) != 0);
        sum_.add(head.substr(0, header::sum));
        return sum_.isAt(head, header::sum);
    }

    /// Goes by what a damaged header says. SQLite applies none of its frames.
    void beginWithDamagedHeader(std::string_view head)
    {
        frameSize_ = frame::size + bigEndian(head, header::pageSize);
        salts_ = head.substr(header::salts, 2 * saltSize);
        isGood_ = false;
        isTorn_ = true;
    }

    /// Whether frames follow what may be no header: one goes on from the sum that the header or
    /// the frame before stores. SQLite applies none of them.
    /// @param frames  the first two or more of pages of this size
    bool beginWithoutHeader(std::string_view head, std::string_view frames, std::uint32_t pageSize,
                            bool isBigEndian)
    {
        *this = FrameWalk();
        isGood_ = false;
        isTorn_ = true;
        frameSize_ = frame::size + pageSize;
        sum_ = Checksum(isBigEndian);
        if (frames.size() < frameSize_)
            return false;
        salts_ = frames.substr(frame::salts, 2 * saltSize);
        sum_.goOnFrom(head, header::sum);
        if (isNext(frames.substr(0, frameSize_)))
            return true;
        sum_.goOnFrom(frames, frame::sum);
        return isNext(frames.substr(frameSize_, frameSize_));
    }

    std::size_t frameSize() const { return frameSize_; }

    /// @param bytes  fewer than those of a frame at the end of a file that is cut off
    void take(std::string_view bytes)
    {
        ++frames_;
        isGood_ = isGood_ && isNext(bytes);
        if (isGood_)
            count(bytes, commits_);
        else
            takeBehind(bytes);
    }

    WriteAheadLog result() const
    {
        const bool isDamaged = lostCommits_ > 0 || isTorn_ || leftOver_ == 1;
        return {isDamaged ? LogState::Damaged : LogState::Good,
                commits_,
                lostCommits_,
                isOpen_,
                areZeros_,
                frames_,
                false};
    }

private:
    /// Whether a frame is whole and goes on from the one before.
    bool isNext(std::string_view bytes)
    {
        if (bytes.size() < frameSize_ || bigEndian(bytes, frame::pageNumber) == 0 ||
            !hasSalts(bytes))
            return false;
        sum_.add(bytes.substr(0, frame::salts));
        sum_.add(bytes.substr(frame::size));
        return sum_.isAt(bytes, frame::sum);
    }

    /// Behind the last good frame are, in a sound log, frames of an earlier log that began at the
    /// same place, or of a change that was given up, and zeros up to the end. Anything else is
    /// damage.
    void takeBehind(std::string_view bytes)
    {
        const bool wereZeros = areZeros_;
        areZeros_ = goesOnInZeros(bytes);
        if (areZeros_)
            return;
        isTorn_ = isTorn_ || (wereZeros && !isBehindEarlierLog_);
        if (isOfThisLog(bytes))
            takeLeftOver(bytes);
        else if (isOfEarlierLog(bytes))
            isBehindEarlierLog_ = true;
        else if (!isBehindEarlierLog_)
            isTorn_ = true;
    }

    /// A change that was given up is overwritten from its first frame on. What is left of it are
    /// whole frames, and the sum of each but the first goes on from the one stored before it. One
    /// alone cannot be told from a damaged frame.
    void takeLeftOver(std::string_view bytes)
    {
        count(bytes, lostCommits_);
        const bool goesOn = leftOver_ > 0 && isNext(bytes);
        const bool mayBeLeft = bytes.size() == frameSize_ && hasSalts(bytes) && frames_ > 1 &&
                               !isBehindEarlierLog_ && (goesOn || leftOver_ != 1);
        isTorn_ = isTorn_ || !mayBeLeft;
        leftOver_ = goesOn ? leftOver_ + 1 : 1;
        if (mayBeLeft)
            sum_.goOnFrom(bytes, frame::sum);
    }

    bool hasSalts(std::string_view bytes) const
    {
        return bytes.substr(frame::salts, 2 * saltSize) == salts_;
    }

    /// A frame that is cut off may begin with zeros too: those of its page number, which is not 0.
    bool goesOnInZeros(std::string_view bytes) const
    {
        return bytes.find_first_not_of('\0') == std::string_view::npos &&
               (areZeros_ || bytes.size() >= frame::commit);
    }

    /// SQLite counts the first salt up by one whenever it begins a log anew.
    bool isOfEarlierLog(std::string_view bytes) const
    {
        constexpr std::uint32_t mostLogs = 1U << 20U;
        if (bytes.size() < frame::sum)
            return false;
        const std::uint32_t logsBefore = bigEndian(salts_, 0) - bigEndian(bytes, frame::salts);
        return logsBefore > 0 && logsBefore <= mostLogs;
    }

    /// A new log changes both salts, damage hardly does.
    bool isOfThisLog(std::string_view bytes) const
    {
        if (bytes.size() < frame::sum)
            return false;
        const auto salt = [](std::string_view salts, std::size_t which) {
            return salts.substr(which * saltSize, saltSize);
        };
        const std::string_view salts = bytes.substr(frame::salts, 2 * saltSize);
        return salt(salts, 0) == salt(salts_, 0) || salt(salts, 1) == salt(salts_, 1);
    }

    void count(std::string_view bytes, std::int64_t &commits)
    {
        isOpen_ = bigEndian(bytes, frame::commit) == 0;
        commits += isOpen_ ? 0 : 1;
    }

    std::size_t frameSize_ = 0;
    std::string salts_;
    Checksum sum_;
    bool isGood_ = true;              ///< all so far
    bool isOpen_ = false;             ///< the last of this log ends no commit
    bool isTorn_ = false;             ///< this log goes on in what is no frame, or half of one
    bool areZeros_ = false;           ///< the last frame
    bool isBehindEarlierLog_ = false; ///< which this one did not overwrite, so it ends before
    std::int64_t leftOver_ = 0; ///< frames in a row that go on from each other, of no good change
    std::int64_t frames_ = 0;
    std::int64_t commits_ = 0;
    std::int64_t lostCommits_ = 0;
};

/// Whether frames of any size follow a header that is damaged, or is none.
bool beginWithoutHeader(FrameWalk &walk, std::string_view head, std::string_view frames)
{
    if (head.size() < header::size)
        return false;
    for (std::uint32_t size = smallestPage; size <= largestPage; size *= 2)
        for (const bool isBigEndian : {false, true})
            if (walk.beginWithoutHeader(head, frames, size, isBigEndian))
                return true;
    walk = FrameWalk();
    const bool isLog = hasMagic(head) && isPageSize(bigEndian(head, header::pageSize));
    if (isLog)
        walk.beginWithDamagedHeader(head);
    return isLog;
}

WriteAheadLog readToTheEnd(std::istream &in, FrameWalk &walk)
{
    std::string bytes;
    for (bytes.resize(walk.frameSize()); read(in, bytes), !bytes.empty();
         bytes.resize(walk.frameSize()))
        walk.take(bytes);
    return walk.result();
}

/// What stands behind a header that is none.
WriteAheadLog readWithoutHeader(std::istream &in, const std::string &head)
{
    WriteAheadLog log = {hasMagic(head) ? LogState::Damaged : LogState::NoLog};
    std::string frames(2 * (frame::size + largestPage), '\0');
    read(in, frames);
    FrameWalk walk;
    if (beginWithoutHeader(walk, head, frames)) {
        in.clear();
        in.seekg(header::size);
        log = readToTheEnd(in, walk);
    }
    log.isHeaderDamaged = log.state == LogState::Damaged;
    return log;
}

} // namespace

const char *machineName(LogState state)
{
    constexpr const char *names[] = {"missing", "empty", "no-log", "damaged", "good"};
    return names[static_cast<int>(state)];
}

WriteAheadLog readWriteAheadLog(const std::filesystem::path &file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return {};
    std::string bytes(header::size, '\0');
    read(in, bytes);
    if (bytes.empty())
        return {LogState::Empty};
    FrameWalk walk;
    return walk.begin(bytes) ? readToTheEnd(in, walk) : readWithoutHeader(in, bytes);
}

} // namespace iosphoto::tool
