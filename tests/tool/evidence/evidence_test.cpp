#include "evidence/evidence.h"

#include "files/output_file.h"
#include "process/failure.h"
#include "support/sha256_of.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::HasSubstr;

namespace fs = std::filesystem;

class EvidenceTest : public testing::Test
{
protected:
    EvidenceTest() { writeFile(input_, "before"); }

    Json document() const { return Json::parse(readFile(file_)); }

    /// The text of the failure that `finish` throws.
    static std::string failureOf(Evidence &evidence, int status = 0)
    {
        try {
            evidence.finish(status);
        } catch (const Failure &failure) {
            EXPECT_EQ(failure.status(), CannotAccess);
            return failure.what();
        }
        return "none";
    }

    Session session_;
    TemporaryFolder folder_;
    fs::path file_ = folder_ / "evidence.json";
    fs::path input_ = folder_ / "input";
};

TEST_F(EvidenceTest, RefusesAnInputOfWhichItReadsMoreThanItsSize)
{
    const fs::path growing = "/proc/self/status"; // has a size of 0
    if (!fs::exists(growing))
        GTEST_SKIP() << "no such file on this system";
    Evidence evidence(session_, file_, {"iosphoto", "photos"});
    EXPECT_THROW(evidence.addInputs({growing}), Failure);
}

TEST_F(EvidenceTest, RefusesAnOutputThatIsNotThere)
{
    const Evidence evidence(session_, file_, {"iosphoto", "photos"});
    EXPECT_THROW(session_.files.wroteWhole(folder_ / "absent"), Failure);
}

TEST_F(EvidenceTest, TellsOfInputsWhatTheyAreBeforeAndAfter)
{
    const timespec moment = {1578307200, 123456789};
    const timespec times[] = {moment, moment};
    ASSERT_EQ(utimensat(AT_FDCWD, input_.c_str(), times, 0), 0);
    Evidence evidence(session_, file_, {"iosphoto", "photos"});
    evidence.addInputs({input_, folder_ / "absent"});
    evidence.finish(0);

    const Json state = {{"size", 6},
                        {"modified", "2020-01-06T10:40:00.123456789Z"},
                        {"sha256", sha256Of("before")}};
    const Json nothing = {{"size", nullptr}, {"modified", nullptr}, {"sha256", nullptr}};
    Json input = {{"path", input_.string()}, {"pathBytes", nullptr}};
    input.update(state);
    input["after"] = state;
    input["isUnchanged"] = true;
    Json absent = {{"path", (folder_ / "absent").string()}, {"pathBytes", nullptr}};
    absent.update(nothing);
    absent["after"] = nothing;
    absent["isUnchanged"] = true;
    EXPECT_EQ(document()["inputs"], Json({input, absent}));
}

TEST_F(EvidenceTest, OfALargeFileIsOfAllItsPieces)
{
    const std::string bytes(3 * 1024 * 1024 + 1, 'x');
    writeFile(input_, bytes);
    Evidence evidence(session_, file_, {});
    evidence.addInputs({input_});
    evidence.finish(0);
    EXPECT_EQ(document()["inputs"][0]["sha256"], sha256Of(bytes));
}

TEST_F(EvidenceTest, InputThatChangedIsAFailureAndInTheFile)
{
    Evidence evidence(session_, file_, {});
    evidence.addInputs({input_});
    writeFile(input_, "behind");
    EXPECT_EQ(failureOf(evidence), "'" + input_.string() + "' changed while the command ran, as '" +
                                       file_.string() + "' shows; copy it first");
    EXPECT_EQ(document()["inputs"][0]["sha256"], sha256Of("before"));
    EXPECT_EQ(document()["inputs"][0]["after"]["sha256"], sha256Of("behind"));
    EXPECT_EQ(document()["inputs"][0]["isUnchanged"], false);
    EXPECT_EQ(document()["exitStatus"], 3);
}

TEST_F(EvidenceTest, InputMayNeitherComeNorGo)
{
    {
        Evidence evidence(session_, file_, {});
        evidence.addInputs({folder_ / "log"});
        writeFile(folder_ / "log", "");
        EXPECT_THAT(failureOf(evidence), HasSubstr("log' changed"));
        EXPECT_EQ(document()["inputs"][0]["after"]["size"], 0);
    }
    fs::remove(file_);
    Evidence evidence(session_, file_, {});
    evidence.addInputs({input_});
    fs::remove(input_);
    EXPECT_THAT(failureOf(evidence), HasSubstr("input' changed"));
    EXPECT_EQ(document()["inputs"][0]["after"]["size"], nullptr);
}

TEST_F(EvidenceTest, OfAFailedCommandKeepsItsStatusThoughAnInputChanged)
{
    Evidence evidence(session_, file_, {});
    evidence.addInputs({input_});
    writeFile(input_, "behind");
    EXPECT_NE(failureOf(evidence, 4), "none");
    EXPECT_EQ(document()["exitStatus"], 4);
}

TEST_F(EvidenceTest, WhatIsNoFileHasNoContentAndIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
    Evidence evidence(session_, file_, {});
    evidence.addInputs({folder_ / "pipe", folder_.path()});
    evidence.finish(3);
    const Json inputs = document()["inputs"];
    EXPECT_EQ(inputs.size(), 2U);
    for (const Json &input : inputs)
        EXPECT_EQ(input["sha256"], nullptr);
}

TEST_F(EvidenceTest, ListsWrittenFilesWithTheirLastContent)
{
    const std::string out = (folder_ / "out").string();
    Evidence evidence(session_, file_, {});
    for (const char *content : {"first", "second"})
        writeOutput(session_.files, out, content, input_);
    evidence.finish(0);
    const Json output = {
        {"path", out}, {"pathBytes", nullptr}, {"size", 6}, {"sha256", sha256Of("second")}};
    EXPECT_EQ(document()["outputs"], Json::array({output}));
}

TEST_F(EvidenceTest, InputsAndItsOwnFileAreRefusedAsOutput)
{
    Evidence evidence(session_, file_, {});
    evidence.addInputs({input_, folder_ / "absent"});
    for (const fs::path &file : {input_, folder_ / "absent", file_})
        EXPECT_THROW(writeOutput(session_.files, file, "new", fs::path()), Failure) << file;
    EXPECT_EQ(readFile(input_), "before");
    EXPECT_FALSE(exists(folder_ / "absent"));
    evidence.finish(2);
    EXPECT_EQ(document()["outputs"], Json::array());
}

TEST_F(EvidenceTest, NeverReplacesAnInput)
{
    fs::create_symlink(input_, folder_ / "link");
    for (const fs::path &file : {input_, folder_ / "link"})
        EXPECT_THROW(Evidence(session_, file, {}), Failure) << file;
    Evidence evidence(session_, folder_ / "absent", {});
    EXPECT_THROW(evidence.addInputs({input_, folder_ / "absent"}), Failure);
    evidence.finish(2);
    EXPECT_EQ(readFile(input_), "before");
    EXPECT_FALSE(exists(folder_ / "absent"));
}

TEST_F(EvidenceTest, ThatCannotBeWrittenFailsBeforeTheCommandRuns)
{
    EXPECT_THROW(Evidence(session_, folder_.path(), {}), Failure);
    EXPECT_THROW(Evidence(session_, folder_ / "none/evidence.json", {}), Failure);
    EXPECT_THROW(Evidence(session_, "/dev/null", {}), Failure);
}
