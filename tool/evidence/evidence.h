#ifndef IOSPHOTO_TOOL_EVIDENCE_H
#define IOSPHOTO_TOOL_EVIDENCE_H

#include "evidence/file_state.h"
#include "evidence/sha256.h"
#include "files/file_set.h"
#include "session/session.h"
#include "text/json.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace iosphoto::tool {

struct InputFile
{
    std::filesystem::path path;
    FileState before;
    std::optional<FileState> after; ///< none where it could not be read any more

    bool isUnchanged() const { return after && *after == before; }
};

/// What goes through standard input or output, bit by bit.
struct HashedStream
{
    std::uint64_t size = 0;
    Sha256 hash;
};

/// A JSON file of what a command read and wrote, with the hashes to prove it, and that its inputs
/// are after it what they were before.
class Evidence : private FileUseObserver
{
public:
    /// Observes the files of the session while it lives. Throws Failure when the file cannot be
    /// written.
    Evidence(Session &session, const std::filesystem::path &file,
             std::vector<std::string> commandLine);
    ~Evidence() override;

    /// To be called before the command reads these; one may be missing, and has to stay so. Throws
    /// Failure when one cannot be read, or is the file of the evidence.
    void addInputs(const std::vector<std::filesystem::path> &files);

    /// Writes the file, at the end of the command. Throws Failure when that cannot be done, and
    /// when an input changed, which the file says as well.
    void finish(int exitStatus);

private:
    /// A whole file.
    struct Content
    {
        std::uint64_t size = 0;
        std::string sha256;
    };

    void willRead(const std::vector<std::filesystem::path> &files) override { addInputs(files); }
    void received(const char *bytes, std::size_t size) override;
    void willWrite(const std::filesystem::path &file) override;
    void wrote(const std::filesystem::path &file, const QByteArray &content) override;
    void wroteWhole(const std::filesystem::path &file) override;
    void decrypted(const std::string &input, const std::filesystem::path &copy) override;
    void printed(const char *bytes, std::size_t size) override;

    Content contentOf(const std::filesystem::path &file) const;
    static Json asJson(const std::map<std::string, Content> &contents);
    void readInputsAgain();
    Json document(int exitStatus) const;

    Session &session_;
    std::filesystem::path file_;
    std::vector<std::string> commandLine_;
    std::string started_;
    FileSet sources_; ///< the inputs, and those that could not be read
    std::vector<InputFile> inputs_;
    std::map<std::string, Content> decrypted_; ///< by the names of the inputs
    std::map<std::string, Content> outputs_;   ///< by path; the last content of each
    std::optional<HashedStream> received_;
    std::optional<HashedStream> printed_;
};

/// Runs a command and returns its exit status. Where a file for it is named, writes evidence, of a
/// command that fails as well.
int withEvidence(Session &session, const std::optional<std::string> &file,
                 const std::vector<std::string> &commandLine, const std::function<int()> &command);

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_EVIDENCE_H
