#include "evidence/evidence.h"

#include "evidence/file_state.h"
#include "files/output_file.h"
#include "process/failure.h"
#include "text/printable.h"
#include "text/translate.h"
#include "time/time_text.h"

#include <algorithm>
#include <functional>
#include <iostream>
#include <sstream>
#include <utility>

namespace iosphoto::tool {

namespace fs = std::filesystem;

namespace {

/// The name of standard input and output.
constexpr const char *nameOfStream = "-";

template <typename Value>
Json orNull(const std::optional<Value> &value)
{
    return value ? Json(*value) : Json();
}

Json stateAsJson(const FileState &state)
{
    return {{"size", orNull(state.size)},
            {"modified", orNull(state.modified)},
            {"sha256", orNull(state.sha256)}};
}

Json inputAsJson(const InputFile &input)
{
    Json entry = {{"path", input.path.string()}, {"pathBytes", bytesOrNull(input.path.string())}};
    entry.update(stateAsJson(input.before));
    entry["after"] = input.after ? stateAsJson(*input.after) : Json();
    entry["isUnchanged"] = input.isUnchanged();
    return entry;
}

/// It comes but once, so that there is nothing after it that could differ.
Json streamAsInput(const HashedStream &received)
{
    return {{"path", nameOfStream},
            {"pathBytes", nullptr},
            {"size", received.size},
            {"modified", nullptr},
            {"sha256", received.hash.digits()},
            {"after", nullptr},
            {"isUnchanged", true}};
}

void add(std::optional<HashedStream> &stream, const char *bytes, std::size_t size)
{
    if (!stream)
        stream.emplace();
    stream->size += size;
    stream->hash.add(bytes, size);
}

/// For each text its bytes or null; null where all texts are UTF-8.
Json bytesOfAll(const std::vector<std::string> &texts)
{
    if (std::all_of(texts.begin(), texts.end(), isUtf8))
        return {};
    Json all = Json::array();
    for (const std::string &text : texts)
        all.push_back(bytesOrNull(text));
    return all;
}

/// What goes wrong here must not hide why the command failed.
void finishAfterFailure(const Terminal &terminal, Evidence &evidence, ExitStatus status)
{
    try {
        if (std::cout)
            std::cout.flush();
        evidence.finish(status);
    } catch (const std::exception &failure) {
        terminal.printWarning(failure.what());
    }
}

int runAndFinish(const Terminal &terminal, Evidence &evidence, const std::function<int()> &command)
{
    int status = Good;
    try {
        status = command();
        std::cout.flush();
    } catch (const Failure &failure) {
        finishAfterFailure(terminal, evidence, failure.status());
        throw;
    } catch (const std::exception &) {
        finishAfterFailure(terminal, evidence, CannotAccess);
        throw;
    }
    evidence.finish(status);
    return status;
}

} // namespace

Evidence::Evidence(Session &session, const fs::path &file, std::vector<std::string> commandLine)
    : session_(session), file_(file), commandLine_(std::move(commandLine)), started_(utcNow())
{
    std::error_code ignored;
    if (fs::exists(file_, ignored))
        throw Failure(WrongUsage,
                      translate("'{0}' is there already, and evidence replaces no file; "
                                "choose another name",
                                file_.string()));
    requireWritable(file_);
    session_.files.observe(this);
}

Evidence::~Evidence()
{
    session_.files.observe(nullptr);
}

void Evidence::addInputs(const std::vector<fs::path> &files)
{
    std::vector<fs::path> added;
    for (const fs::path &file : files) {
        if (!sources_.contains(file))
            added.push_back(file);
        sources_.add(file);
    }
    requireOther(file_, sources_);
    requireUnprotected(session_.files, file_);
    HashingProgress progress(session_.terminal, added);
    for (const fs::path &file : added)
        inputs_.push_back({file, stateOf(file, progress), std::nullopt});
}

void Evidence::finish(int exitStatus)
{
    session_.files.observe(nullptr);
    if (sources_.contains(file_) ||
        session_.files.isProtected(file_)) // which is why the command failed
        return;
    readInputsAgain();
    const auto changed =
        std::find_if_not(inputs_.begin(), inputs_.end(), std::mem_fn(&InputFile::isUnchanged));
    const bool isAllUnchanged = changed == inputs_.end();
    // That an input changed makes a failure of what was none.
    const int status = isAllUnchanged || exitStatus > Incomplete ? exitStatus : CannotAccess;
    std::ostringstream text;
    print(document(status), text);
    writeOutput(session_.files, file_, QByteArray::fromStdString(text.str()), fs::path());
    if (!isAllUnchanged)
        throw Failure(
            CannotAccess,
            translate("'{0}' changed while the command ran, as '{1}' shows; copy it first",
                      changed->path.string(), file_.string()));
}

void Evidence::readInputsAgain()
{
    std::vector<fs::path> files;
    for (const InputFile &input : inputs_)
        files.push_back(input.path);
    HashingProgress progress(session_.terminal, files);
    for (InputFile &input : inputs_)
        try {
            input.after = stateOf(input.path, progress);
        } catch (const Failure &) {
            input.after.reset(); // the file says so
        }
}

void Evidence::willWrite(const fs::path &file)
{
    if (FileSet(file_).contains(file))
        throw Failure(WrongUsage,
                      translate("'{0}' is where the evidence goes; choose another place for "
                                "the output",
                                file.string()));
    requireOther(file, sources_);
}

void Evidence::wrote(const fs::path &file, const QByteArray &content)
{
    Sha256 hash;
    hash.add(content.constData(), static_cast<std::size_t>(content.size()));
    outputs_[file.string()] = {static_cast<std::uint64_t>(content.size()), hash.digits()};
}

Evidence::Content Evidence::contentOf(const fs::path &file) const
{
    HashingProgress progress(session_.terminal, {file});
    const FileState state = stateOf(file, progress);
    if (!state.size)
        throw Failure(CannotAccess,
                      translate("cannot read '{0}': {1}", file.string(),
                                translate("it is not there any more; check the path")));
    return {*state.size, *state.sha256};
}

void Evidence::wroteWhole(const fs::path &file)
{
    outputs_[file.string()] = contentOf(file);
}

void Evidence::decrypted(const std::string &input, const fs::path &copy)
{
    decrypted_[input] = contentOf(copy);
}

void Evidence::received(const char *bytes, std::size_t size)
{
    add(received_, bytes, size);
}

void Evidence::printed(const char *bytes, std::size_t size)
{
    add(printed_, bytes, size);
}

Json Evidence::asJson(const std::map<std::string, Content> &contents)
{
    Json all = Json::array();
    for (const auto &[path, content] : contents)
        all.push_back({{"path", path},
                       {"pathBytes", bytesOrNull(path)},
                       {"size", content.size},
                       {"sha256", content.sha256}});
    return all;
}

Json Evidence::document(int exitStatus) const
{
    std::error_code ignored;
    const std::string workingFolder = fs::current_path(ignored).string();
    Json document = {{"tool", {{"name", "iosphoto"}, {"version", IOSPHOTO_VERSION}}},
                     {"commandLine", commandLine_},
                     {"commandLineBytes", bytesOfAll(commandLine_)},
                     {"workingFolder", workingFolder},
                     {"workingFolderBytes", bytesOrNull(workingFolder)},
                     {"timeZone", {{"name", timeZoneName()}, {"utcOffset", utcOffsetNow()}}},
                     {"started", started_},
                     {"finished", utcNow()}};
    Json &inputs = document["inputs"] = Json::array();
    if (received_)
        inputs.push_back(streamAsInput(*received_));
    for (const InputFile &input : inputs_)
        inputs.push_back(inputAsJson(input));
    document["decrypted"] = asJson(decrypted_);
    std::map<std::string, Content> outputs = outputs_;
    if (printed_)
        outputs[nameOfStream] = {printed_->size, printed_->hash.digits()};
    document["outputs"] = asJson(outputs);
    document["exitStatus"] = exitStatus;
    return document;
}

int withEvidence(Session &session, const std::optional<std::string> &file,
                 const std::vector<std::string> &commandLine, const std::function<int()> &command)
{
    if (!file)
        return command();
    Evidence evidence(session, *file, commandLine);
    return runAndFinish(session.terminal, evidence, command);
}

} // namespace iosphoto::tool
