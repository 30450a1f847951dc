#include "support/json_schema.h"

#include "support/temporary_folder.h"

#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_results.hpp>
#include <valijson/validator.hpp>

#include <map>
#include <memory>
#include <stdexcept>

namespace iosphoto::test {

namespace {

using Adapter = valijson::adapters::NlohmannJsonAdapter;

nlohmann::json schemaFile(const std::string &name)
{
    return nlohmann::json::parse(readFile(std::string(IOSPHOTO_SCHEMAS) + "/" + name));
}

std::unique_ptr<valijson::Schema> parsedSchema(const std::string &name)
{
    const nlohmann::json text = schemaDocument(name);
    auto schema = std::make_unique<valijson::Schema>();
    valijson::SchemaParser parser;
    parser.populateSchema(
        Adapter(text), *schema,
        [](const std::string &uri) { return new const nlohmann::json(schemaFile(uri)); },
        [](const nlohmann::json *fetched) { delete fetched; });
    return schema;
}

const valijson::Schema &parsedOnce(const std::string &name)
{
    static std::map<std::string, std::unique_ptr<valijson::Schema>> schemas;
    std::unique_ptr<valijson::Schema> &schema = schemas[name];
    if (!schema)
        schema = parsedSchema(name);
    return *schema;
}

/// Tries the keys of a document.
class KeyTrial
{
public:
    KeyTrial(std::string schema, nlohmann::json document)
        : schema_(std::move(schema)), document_(std::move(document))
    {
    }

    std::vector<std::string> freeKeys()
    {
        tryAt(document_, "");
        return free_;
    }

private:
    void tryAt(nlohmann::json &value, const std::string &path)
    {
        if (value.is_object())
            tryKeys(value, path);
        else if (value.is_array() && !value.empty())
            tryAt(value[0], path + "/0");
    }

    void tryKeys(nlohmann::json &object, const std::string &path)
    {
        const nlohmann::json whole = object;
        object["*"] = nullptr;
        noteIfItFits(path + "/*");
        for (const auto &[key, member] : whole.items()) {
            object = whole;
            object.erase(key);
            noteIfItFits(path + "/" + key);
        }
        object = whole;
        for (const auto &[key, member] : whole.items())
            tryAt(object[key], path + "/" + key);
    }

    void noteIfItFits(const std::string &path)
    {
        if (schemaComplaints(schema_, document_).empty())
            free_.push_back(path);
    }

    std::string schema_;
    nlohmann::json document_;
    std::vector<std::string> free_;
};

} // namespace

std::string schemaComplaints(const std::string &schema, const nlohmann::json &document)
{
    valijson::Validator validator;
    valijson::ValidationResults results;
    if (validator.validate(parsedOnce(schema), Adapter(document), &results))
        return "";
    std::string complaints;
    for (valijson::ValidationResults::Error error; results.popError(error);) {
        for (const std::string &step : error.context)
            complaints += step;
        complaints += " " + error.description + "\n";
    }
    return complaints;
}

nlohmann::json schemaDocument(const std::string &schema)
{
    return schemaFile(schema + ".schema.json");
}

std::vector<std::string> freeKeys(const std::string &schema, nlohmann::json document)
{
    if (const std::string complaints = schemaComplaints(schema, document); !complaints.empty())
        throw std::invalid_argument(complaints);
    return KeyTrial(schema, std::move(document)).freeKeys();
}

} // namespace iosphoto::test
