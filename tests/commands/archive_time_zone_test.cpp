// The local times that a zip archive stores, and which zone they are taken to be in.
#include "support/archive_builder.h"
#include "support/source_folder.h"

#include <nlohmann/json.hpp>

using namespace iosphoto::test;
using nlohmann::json;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

class ToolArchiveTimeZone : public SourceFolder
{
protected:
    ToolArchiveTimeZone()
    {
        ArchiveBuilder builder(archive_, zip);
        builder.add("x", "something in front");
        builder.add(mediaDatabase, readFile(library_.path())); // 2020-09-13 12:26:40 UTC
    }

    /// Gives the fields with the time in UTC an id that nobody knows.
    void removeUtcTimes() const
    {
        std::string bytes = readFile(archive_);
        for (std::size_t at = bytes.find("UT"); at != std::string::npos; at = bytes.find("UT", at))
            bytes.replace(at, 2, "zz");
        writeFile(archive_, bytes);
    }

    ToolRun inKolkata(const std::vector<std::string> &more) const
    {
        std::vector<std::string> arguments = {"info", archive_.string()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return runTool(arguments, {{"TZ", "Asia/Kolkata"}});
    }
    json documentInKolkata(const std::vector<std::string> &more = {}) const
    {
        std::vector<std::string> arguments = {"--json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return json::parse(inKolkata(arguments).out);
    }

    const fs::path archive_ = folder_ / "phone.zip";
};

TEST_F(ToolArchiveTimeZone, ThatIsAssumedIsSaid)
{
    removeUtcTimes();
    EXPECT_THAT(inKolkata({}).error,
                HasSubstr("as of 2020-09-13 12:26 +05:30 (its last change; the archive does not "
                          "say in which time zone, Asia/Kolkata is assumed)\n"));
    EXPECT_EQ(documentInKolkata()["asOf"], "2020-09-13T06:56:40Z");
    EXPECT_EQ(documentInKolkata()["assumedTimeZone"], "Asia/Kolkata");
}

TEST_F(ToolArchiveTimeZone, ThatTheArchiveKnowsIsNot)
{
    EXPECT_THAT(inKolkata({}).error,
                HasSubstr("as of 2020-09-13 17:56 +05:30 (its last change)\n"));
    EXPECT_EQ(documentInKolkata()["asOf"], "2020-09-13T12:26:40Z");
    EXPECT_EQ(documentInKolkata()["assumedTimeZone"], nullptr);
}

TEST_F(ToolArchiveTimeZone, DoesNotMatterWhereTheMomentComesFromElsewhere)
{
    removeUtcTimes();
    EXPECT_EQ(documentInKolkata({"--as-of", "2023-01-01"})["assumedTimeZone"], nullptr);
    const fs::path backup =
        packed(writeBackup(folder_ / "backup", library_), folder_ / "backup", zip);
    EXPECT_THAT(runTool({"info", backup.string()}, {{"TZ", "Asia/Kolkata"}}).error,
                Not(HasSubstr("is assumed")));
}

TEST_F(ToolArchiveTimeZone, IsThatOfUtcInATar)
{
    const fs::path archive = folder_ / "phone.tar";
    ArchiveBuilder(archive, tar).add(mediaDatabase, readFile(library_.path()));
    const ToolRun run = runTool({"info", archive.string()}, {{"TZ", "Asia/Kolkata"}});
    EXPECT_THAT(run.error, HasSubstr("as of 2020-09-13 17:56 +05:30 (its last change)\n"));
}
