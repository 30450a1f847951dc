#include "support/json_schema.h"

#include "support/temporary_folder.h"

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <memory>

namespace iosphoto::test {

namespace {

using Adapter = valijson::adapters::NlohmannJsonAdapter;

nlohmann::json schemaFile(const std::string &name)
{
    return nlohmann::json::parse(readFile(std::string(IOSPHOTO_SCHEMAS) + "/" + name));
}

std::unique_ptr<valijson::Schema> parsedSchema(const std::string &name)
{
    const nlohmann::json text = schemaFile(name + ".schema.json");
    auto schema = std::make_unique<valijson::Schema>();
    valijson::SchemaParser parser;
    parser.populateSchema(
        Adapter(text), *schema,
        [](const std::string &uri) { return new const nlohmann::json(schemaFile(uri)); },
        [](const nlohmann::json *fetched) { delete fetched; });
    return schema;
}

} // namespace

std::string schemaComplaints(const std::string &schema, const nlohmann::json &document)
{
    valijson::Validator validator;
    valijson::ValidationResults results;
    if (validator.validate(*parsedSchema(schema), Adapter(document), &results))
        return "";
    std::string complaints;
    for (valijson::ValidationResults::Error error; results.popError(error);) {
        for (const std::string &step : error.context)
            complaints += step;
        complaints += " " + error.description + "\n";
    }
    return complaints;
}

} // namespace iosphoto::test
