#include "commands/evidence_option.h"

#include "commands/looks_like.h"
#include "language/said.h"

namespace iosphoto::tool {

void addEvidenceOption(CLI::App &command, std::optional<std::string> &file)
{
    command
        .add_option("--evidence", file,
                    said("write a JSON file that lists the files read and written, with their "
                         "SHA-256 hashes"))
        ->type_name(said("FILE"))
        ->check(notEmpty());
}

} // namespace iosphoto::tool
