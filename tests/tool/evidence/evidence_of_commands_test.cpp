#include "evidence/evidence.h"

#include "process/failure.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using namespace iosphoto::tool;
using testing::HasSubstr;

namespace fs = std::filesystem;

class WithEvidence : public testing::Test
{
protected:
    WithEvidence() { writeFile(input_, "before"); }

    nlohmann::json evidence() const { return nlohmann::json::parse(readFile(file_)); }

    Session session_;
    TemporaryFolder folder_;
    std::string file_ = (folder_ / "evidence.json").string();
    fs::path input_ = folder_ / "input";
};

TEST_F(WithEvidence, RunsACommandAndHasItsStatus)
{
    for (const auto &file : {std::optional<std::string>(), std::optional(file_)}) {
        const auto command = [this]() {
            session_.files.willRead({input_});
            return int{Incomplete};
        };
        EXPECT_EQ(withEvidence(session_, file, {"iosphoto"}, command), Incomplete);
        EXPECT_EQ(exists(fs::path(file_)), file.has_value());
    }
    EXPECT_EQ(evidence()["exitStatus"], Incomplete);
    EXPECT_EQ(evidence()["inputs"].size(), 1U);
}

TEST_F(WithEvidence, RunsNothingWhereItCannotBeWritten)
{
    const auto command = []() -> int { throw std::logic_error("it ran"); };
    EXPECT_THROW(withEvidence(session_, folder_.path().string(), {}, command), Failure);
}

TEST_F(WithEvidence, DoesNotHideWhyACommandFailed)
{
    const auto command = [this]() -> int {
        session_.files.willRead({input_});
        writeFile(input_, "behind");
        throw Failure(WrongKindOfFile, "wrong kind");
    };
    testing::internal::CaptureStderr();
    try {
        withEvidence(session_, file_, {}, command);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_STREQ(failure.what(), "wrong kind");
    }
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("changed while the command ran"));
    EXPECT_EQ(evidence()["exitStatus"], WrongKindOfFile);
}

TEST_F(WithEvidence, IsWrittenOfAnUnexpectedFailureAsWell)
{
    const auto command = []() -> int { throw std::bad_alloc(); };
    EXPECT_THROW(withEvidence(session_, file_, {}, command), std::bad_alloc);
    EXPECT_EQ(evidence()["exitStatus"], CannotAccess);
}
