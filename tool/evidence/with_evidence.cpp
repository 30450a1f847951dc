#include "evidence/with_evidence.h"

#include "evidence/evidence.h"
#include "failure.h"
#include "output/notice.h"

#include <iostream>

namespace iosphoto::tool {

namespace {

/// What goes wrong here must not hide why the command failed.
void finishAfterFailure(Evidence &evidence, ExitStatus status)
{
    try {
        if (std::cout)
            std::cout.flush();
        evidence.finish(status);
    } catch (const std::exception &failure) {
        notice(failure.what());
    }
}

int runAndFinish(Evidence &evidence, const std::function<int()> &command)
{
    int status = Good;
    try {
        status = command();
        std::cout.flush();
    } catch (const Failure &failure) {
        finishAfterFailure(evidence, failure.status());
        throw;
    } catch (const std::exception &) {
        finishAfterFailure(evidence, CannotAccess);
        throw;
    }
    evidence.finish(status);
    return status;
}

} // namespace

int withEvidence(const std::optional<std::string> &file,
                 const std::vector<std::string> &commandLine, const std::function<int()> &command)
{
    if (!file)
        return command();
    Evidence evidence(*file, commandLine);
    return runAndFinish(evidence, command);
}

} // namespace iosphoto::tool
