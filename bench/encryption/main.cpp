// Measures what an encrypted backup costs against what the openssl command needs for the same:
// iosphoto_encryption_bench [--strict]
// Pairs in turn, the median of their ratios. With --strict a missed goal is a failure.
#include "child.h"
#include "cipher/key_derivation.h"
#include "input/backup/encrypted_file.h"
#include "support/hexadecimal.h"
#include "support/temporary_folder.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

using namespace iosphoto;
using namespace iosphoto::bench;

namespace {

constexpr int pairs = 5;

double secondsOf(const std::function<void()> &work)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void runOpenssl(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "openssl");
    if (runChild(arguments, Output::Dropped).status != 0)
        throw std::runtime_error("openssl " + arguments.at(1) + " fails");
}

/// What the reader of backups takes, and the openssl command.
struct Pair
{
    double ours;
    double theirs;
};

/// @param most  of ours by theirs
bool judge(const char *what, double most, const std::function<Pair()> &measure)
{
    std::vector<double> ratios;
    for (int i = 0; i < pairs; ++i) {
        const Pair pair = measure();
        std::printf("%-12s %6.2f s, openssl %6.2f s\n", what, pair.ours, pair.theirs);
        ratios.push_back(pair.ours / pair.theirs);
    }
    std::nth_element(ratios.begin(), ratios.begin() + pairs / 2, ratios.end());
    const double median = ratios.at(pairs / 2);
    std::printf("%-12s %6.2f of openssl, goal %.2f%s\n", what, median, most,
                median > most ? ": MISSED" : "");
    return median <= most;
}

/// As many rounds as a recent phone asks for.
Pair derive()
{
    const std::string salt(20, 's');
    constexpr std::uint32_t rounds = 10'000'000;
    const tool::KeyDerivation derivation = {tool::KeyDerivation::Hash::Sha256, salt, rounds};
    const double ours = secondsOf([&] { (void)derivation.keyOf(tool::Secret("password")); });
    const double theirs = secondsOf([&] {
        runOpenssl({"kdf", "-keylen", "32", "-kdfopt", "digest:SHA256", "-kdfopt", "pass:password",
                    "-kdfopt", "salt:" + salt, "-kdfopt", fmt::format("iter:{}", rounds),
                    "PBKDF2"});
    });
    return {ours, theirs};
}

/// A file of 1 GB, encrypted; decrypted in its place by us, into another one by the command.
class Decryption
{
public:
    Decryption()
    {
        std::ofstream out(content_, std::ios::binary);
        const std::string piece(1 << 20, 'p');
        for (int i = 0; i < megabytes; ++i)
            out << piece;
        out.close();
        runOpenssl(command("-e", content_, stored_));
    }

    Pair measure() const
    {
        std::filesystem::copy_file(stored_, copy_,
                                   std::filesystem::copy_options::overwrite_existing);
        const double ours = secondsOf([&] {
            const auto result = tool::decryptInPlace(copy_, tool::Secret(key_), std::nullopt);
            if (result.state != tool::DecryptedFile::State::Whole)
                throw std::runtime_error("the file is not what it was");
        });
        const double theirs = secondsOf([&] { runOpenssl(command("-d", stored_, content_)); });
        return {ours, theirs};
    }

private:
    std::vector<std::string> command(const char *direction, const std::filesystem::path &from,
                                     const std::filesystem::path &into) const
    {
        return {"enc",
                direction,
                "-aes-256-cbc",
                "-K",
                test::hexadecimal(key_),
                "-iv",
                std::string(32, '0'),
                "-in",
                from.string(),
                "-out",
                into.string()};
    }

    static constexpr int megabytes = 1000;

    const test::TemporaryFolder folder_;
    const std::filesystem::path content_ = folder_ / "content";
    const std::filesystem::path stored_ = folder_ / "stored";
    const std::filesystem::path copy_ = folder_ / "copy";
    const std::string key_ = std::string(32, 'k');
};

} // namespace

int main(int argc, char **argv)
{
    try {
        constexpr double mostOfDerivation = 1.1;
        constexpr double mostOfDecryption = 1 / 0.8;
        const bool isStrict = argc > 1 && std::string(argv[1]) == "--strict";
        const bool isDerivedInTime = judge("derivation", mostOfDerivation, derive);
        const Decryption decryption;
        const bool isDecryptedInTime =
            judge("decryption", mostOfDecryption, [&] { return decryption.measure(); });
        return isStrict && !(isDerivedInTime && isDecryptedInTime) ? 1 : 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "iosphoto_encryption_bench: %s\n", error.what());
        return 1;
    }
}
