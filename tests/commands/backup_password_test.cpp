#include "support/source_folder.h"
#include "support/tool_at_terminal.h"

using namespace iosphoto::test;
using testing::HasSubstr;
using testing::Not;

namespace fs = std::filesystem;

namespace {

constexpr const char *variable = "IOSPHOTO_BACKUP_PASSWORD";

/// An encrypted backup, whose password is "correct horse".
class ToolBackupPassword : public SourceFolder
{
protected:
    ToolBackupPassword()
    {
        BackupOptions options;
        options.isEncrypted = true;
        writeBackup(backup_, library_, options);
    }

    fs::path fileWith(const std::string &content) const
    {
        const fs::path file = folder_ / "password";
        writeFile(file, content);
        return file;
    }
    ToolRun albumsWith(const std::vector<std::string> &options,
                       const Environment &environment = {}) const
    {
        std::vector<std::string> arguments = {"albums", backup_.string()};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return runTool(arguments, environment);
    }
    ToolRun albumsWithFile(const std::string &content) const
    {
        return albumsWith({"--password-file", fileWith(content)});
    }
    void expectWrongPassword(const ToolRun &run) const
    {
        expectFailure(run,
                      "no password given is that of the encrypted backup " + quoted(backup_) +
                          "; it is the one that was set where backups of the device are made, not "
                          "its passcode\n",
                      6);
    }

    const fs::path backup_ = folder_ / "backup";
};

/// One who is asked for the password.
class ToolAsksForPassword : public ToolBackupPassword
{
protected:
    ToolAsksForPassword() : tool_({"albums", backup_.string()})
    {
        tool_.waitFor(question());
        EXPECT_FALSE(tool_.showsInput());
    }

    std::string question() const
    {
        return "password of the encrypted backup " + quoted(backup_) + ": ";
    }
    void answer(const std::string &line, const std::string &nextQuestion)
    {
        tool_.type(line + "\n");
        tool_.waitFor(nextQuestion);
    }

    ToolAtTerminal tool_;
};

} // namespace

TEST_F(ToolBackupPassword, InAFileIsItsFirstLine)
{
    for (const char *content :
         {"correct horse", "correct horse\n", "correct horse\r\n", "correct horse\nand more\n"})
        expectWhole(albumsWithFile(content));
}

TEST_F(ToolBackupPassword, InAFileIsTakenAsItStands)
{
    for (const char *content : {" correct horse", "correct horse ", "\ncorrect horse"})
        EXPECT_EQ(albumsWithFile(content).status, 6) << content;
}

TEST_F(ToolBackupPassword, ThroughAPipe)
{
    expectWhole(
        runToolOnPipe("correct horse\n", {"albums", backup_.string(), "--password-file", "-"}));
}

TEST_F(ToolBackupPassword, OnStandardInputLeavesTheRestToOthers)
{
    const fs::path lines = fileWith("correct horse\nrest\n");
    const std::string script = "{ '" IOSPHOTO_TOOL "' albums '" + backup_.string() +
                               "' --password-file - > /dev/null && cat > '" +
                               (folder_ / "rest").string() + "'; } < '" + lines.string() + "'";
    ASSERT_EQ(std::system(script.c_str()), 0);
    EXPECT_EQ(readFile(folder_ / "rest"), "rest\n");
}

TEST_F(ToolBackupPassword, InTheEnvironment)
{
    expectWhole(albumsWith({}, {{variable, "correct horse"}}));
    expectWrongPassword(albumsWith({}, {{variable, "other"}}));
}

TEST_F(ToolBackupPassword, InAFileCountsBeforeThatInTheEnvironment)
{
    expectWhole(albumsWith({"--password-file", fileWith("correct horse")}, {{variable, "other"}}));
    expectWrongPassword(
        albumsWith({"--password-file", fileWith("other")}, {{variable, "correct horse"}}));
}

TEST_F(ToolBackupPassword, ThatIsMissingOrEmptyIsAskedFor)
{
    const std::string text = " is an encrypted backup and needs its password; name a file with it "
                             "by --password-file, or set IOSPHOTO_BACKUP_PASSWORD\n";
    expectFailure(albumsWith({}), quoted(backup_) + text, 6);
    expectFailure(albumsWith({}, {{variable, ""}}), quoted(backup_) + text, 6);
}

TEST_F(ToolBackupPassword, ThatIsWrong)
{
    expectWrongPassword(albumsWithFile("correct horsf"));
}

TEST_F(ToolBackupPassword, OfSeveralFilesEachIsTried)
{
    const fs::path right = folder_ / "right";
    writeFile(right, "correct horse");
    expectWhole(
        albumsWith({"--password-file", fileWith("other"), "--password-file", right.string()}));
}

TEST_F(ToolBackupPassword, InAFileThatCannotBeRead)
{
    const fs::path file = folder_ / "nowhere";
    expectFailure(albumsWith({"--password-file", file}),
                  "cannot read the password file " + quoted(file) +
                      ": No such file or directory; check the path\n",
                  3);
    EXPECT_EQ(albumsWith({"--password-file", folder_.path().string()}).status, 3);
}

TEST_F(ToolBackupPassword, InAFileWithoutAFirstLine)
{
    for (const char *content : {"", "\n", "\r\n", "\nmore\n"})
        expectFailure(albumsWithFile(content),
                      "the first line of " + quoted(folder_ / "password") +
                          " is empty; write the password of the backup there\n",
                      6);
}

TEST_F(ToolBackupPassword, InAFileWithALineThatIsNoPassword)
{
    EXPECT_EQ(albumsWithFile(std::string(5000, 'x')).status, 2);
}

TEST_F(ToolBackupPassword, InTheCommandLineIsWrongUsage)
{
    for (const auto &options : std::vector<std::vector<std::string>>{
             {"--password", "correct horse"}, {"--password=correct horse"}}) {
        const ToolRun run = albumsWith(options);
        expectFailure(run, "--password: others can read what stands in a command line; ", 2);
        EXPECT_THAT(run.error, Not(HasSubstr("correct")));
    }
}

TEST_F(ToolBackupPassword, IsExplainedInTheHelp)
{
    const std::string help = runTool({"photos", "--help"}).out;
    EXPECT_THAT(help, HasSubstr("--password-file FILE"));
    EXPECT_THAT(help, HasSubstr("an option with the password itself would show it to others"));
    EXPECT_THAT(help, Not(HasSubstr("--password ")));
}

TEST_F(ToolBackupPassword, ForASourceThatNeedsNoneIsNoError)
{
    const fs::path file = fileWith("correct horse");
    const ToolRun run = runTool({"albums", library_.path(), "--password-file", file},
                                {{variable, "correct horse"}});
    expectWhole(run);
}

TEST_F(ToolBackupPassword, IsInNoOutput)
{
    const fs::path evidence = folder_ / "evidence.json";
    for (const char *password : {"correct horse", "wrong horse"}) {
        const ToolRun run = runTool({"info", backup_.string(), "--json", "--evidence", evidence},
                                    {{variable, password}});
        for (const std::string &text : {run.out, run.error, readFile(evidence)})
            EXPECT_THAT(text, Not(HasSubstr("horse")));
    }
}

TEST_F(ToolBackupPassword, IsNotTypedWhereTheTerminalWouldShowIt)
{
    const ToolRun run = runToolFromTerminal({"albums", backup_.string(), "--password-file", "-"});
    expectFailure(run,
                  "--password-file -: standard input is a terminal, which would show the "
                  "password; leave the option out to be asked for it\n",
                  2);
}

TEST_F(ToolBackupPassword, IsNotAskedForInTheBackground)
{
    ToolAtTerminal tool({"albums", backup_.string()}, {}, ToolAtTerminal::Streams::InFiles,
                        ToolAtTerminal::Standing::Background);
    expectFailure(tool.result(), quoted(backup_) + " is an encrypted backup and needs its password",
                  6);
}

TEST_F(ToolBackupPassword, OfBothBackupsIsAskedForBeforeOneIsTried)
{
    const fs::path later = folder_ / "later";
    BackupOptions options;
    options.isEncrypted = true;
    writeBackup(later, library_, options);
    const auto question = [](const fs::path &backup) {
        return "password of the encrypted backup " + quoted(backup);
    };
    ToolAtTerminal tool({"diff", backup_.string(), later.string()});
    tool.waitFor(question(backup_) + ": ");
    tool.type("wrong\n");
    tool.waitFor(question(later) + " (Enter: the same): ");
    EXPECT_THAT(tool.shown(), Not(HasSubstr("that is not its password")));
    tool.type("correct horse\n");
    tool.waitFor(question(backup_) + ", try 2 of 3: ");
    tool.type("correct horse\n");
    EXPECT_EQ(tool.result().out, "no difference\n");
}

TEST_F(ToolBackupPassword, IsTheSameForBothBackupsWhereOnlyEnterIsTyped)
{
    ToolAtTerminal tool({"diff", backup_.string(), (backup_ / ".." / "backup").string()});
    tool.waitFor(": ");
    tool.type("correct horse\n");
    tool.waitFor("(Enter: the same): ");
    tool.type("\n");
    EXPECT_EQ(tool.result().out, "no difference\n");
}

TEST_F(ToolBackupPassword, ThatTakesLongToTryIsSpokenOfAndCanBeInterrupted)
{
    BackupOptions options;
    options.isEncrypted = true;
    options.encryption.alterKeyBag = [](KeyBagEntries &entries) {
        for (auto &[tag, value] : entries)
            if (tag == "DPIC")
                value = bigEndian(100'000'000, 4); // a quarter of a minute
    };
    writeBackup(backup_, library_, options);
    ToolAtTerminal tool({"albums", backup_.string()}, {{variable, "correct horse"}},
                        ToolAtTerminal::Streams::ErrorAtTerminal);
    tool.waitFor("trying the password of the backup ... ");
    tool.type("\x03");
    EXPECT_EQ(tool.result().status, 130);
}

TEST_F(ToolAsksForPassword, AndLeavesNoMemoryOnDiskFromThenOn)
{
    const fs::path limits = "/proc/" + std::to_string(tool_.process()) + "/limits";
    if (!fs::exists(limits))
        GTEST_SKIP() << "this system does not tell the limits of a process";
    EXPECT_THAT(readFile(limits), testing::ContainsRegex("Max core file size +0 +0 "));
    tool_.type("\x04");
    (void)tool_.result();
}

TEST_F(ToolAsksForPassword, AndReadsTheBackup)
{
    answer("correct horse", "\n");
    const ToolRun run = tool_.result();
    expectWhole(run);
    EXPECT_THAT(run.error, Not(HasSubstr("password")));
    EXPECT_THAT(tool_.shown(), Not(HasSubstr("horse")));
    EXPECT_TRUE(tool_.showsInput());
}

TEST_F(ToolAsksForPassword, ThreeTimes)
{
    const auto again = [&](int number) {
        return "that is not its password; password of the encrypted backup " + quoted(backup_) +
               ", try " + std::to_string(number) + " of 3: ";
    };
    answer("one", again(2));
    answer("two", again(3));
    answer("three", "\n");
    expectWrongPassword(tool_.result());
    EXPECT_TRUE(tool_.showsInput());
}

TEST_F(ToolAsksForPassword, AndTakesASecondTry)
{
    answer("one", "try 2 of 3: ");
    answer("correct horse", "\n");
    expectWhole(tool_.result());
}

TEST_F(ToolAsksForPassword, AndIsToldThatThereIsNone)
{
    tool_.type("\x04"); // Ctrl-D
    const ToolRun run = tool_.result();
    expectFailure(run, quoted(backup_) + " is an encrypted backup and needs its password", 6);
    EXPECT_TRUE(tool_.showsInput());
}

TEST_F(ToolAsksForPassword, AndLeavesTheTerminalAsItWasWhenInterrupted)
{
    for (const auto &[key, signal] : std::map<std::string, int>{{"\x03", 2}, {"\x1c", 3}}) {
        ToolAtTerminal tool({"albums", backup_.string()});
        tool.waitFor(question());
        EXPECT_FALSE(tool.showsInput());
        tool.type(key);
        const ToolRun run = tool.result();
        EXPECT_EQ(run.status, 128 + signal);
        EXPECT_EQ(run.error, "iosphoto: interrupted; every file that was written is complete\n");
        EXPECT_TRUE(tool.showsInput());
    }
}
