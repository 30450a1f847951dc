// The JSON Schemas of docs/schema, as texts: that each is strict and describes all it names.
#include "support/case_name.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

using namespace iosphoto::test;
using nlohmann::json;
using testing::IsEmpty;

namespace fs = std::filesystem;

namespace {

const fs::path folder = fs::path(IOSPHOTO_SOURCE) / "docs/schema";

json schemaFile(const fs::path &name)
{
    return json::parse(readFile(folder / name));
}

std::vector<std::string> allSchemas()
{
    std::vector<std::string> names;
    for (const auto &file : fs::directory_iterator(folder))
        names.push_back(file.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// What a reference of a file stands for.
json resolved(const std::string &reference, const std::string &file)
{
    const std::size_t hash = std::min(reference.find('#'), reference.size());
    const std::string other = reference.substr(0, hash);
    const json document = schemaFile(other.empty() ? file : other);
    return hash == reference.size() ? document
                                    : document.at(json::json_pointer(reference.substr(hash + 1)));
}

bool isDescribed(const json &schema, const std::string &file)
{
    if (schema.contains("$ref"))
        return isDescribed(resolved(schema["$ref"], file), file);
    return !schema.value("description", "").empty();
}

std::vector<std::string> keysOf(const json &object)
{
    std::vector<std::string> keys;
    for (const auto &[key, value] : object.items())
        keys.push_back(key);
    return keys;
}

/// What is wrong with the objects that a schema, or a part of one, describes.
std::vector<std::string> faultsOf(const json &schema, const std::string &file,
                                  const std::string &path = "")
{
    std::vector<std::string> faults;
    if (schema.is_object() && schema.value("type", json()) == "object") {
        std::vector<std::string> required = schema.value("required", std::vector<std::string>());
        std::sort(required.begin(), required.end());
        if (required != keysOf(schema.at("properties")))
            faults.push_back(path + ": not all keys are required");
        if (schema.value("additionalProperties", json()) != false)
            faults.push_back(path + ": others are allowed");
        for (const auto &[key, property] : schema.at("properties").items())
            if (!isDescribed(property, file))
                faults.push_back(path + "/" + key + ": not described");
    }
    if (schema.is_structured())
        for (const auto &[key, part] : schema.items())
            for (const std::string &fault : faultsOf(part, file, path + "/" + key))
                faults.push_back(fault);
    return faults;
}

} // namespace

class JsonSchemaFile : public testing::TestWithParam<std::string>
{
};

TEST_P(JsonSchemaFile, IsStrictAndDescribesEachKey)
{
    const json schema = schemaFile(GetParam());
    EXPECT_EQ(schema["$schema"], "http://json-schema.org/draft-07/schema#");
    EXPECT_EQ(schema["type"], "object");
    EXPECT_NE(schema["title"], "");
    EXPECT_NE(schema["description"], "");
    EXPECT_THAT(faultsOf(schema, GetParam()), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Files, JsonSchemaFile, testing::ValuesIn(allSchemas()),
                         [](const auto &test) { return caseName(test.param); });

TEST(JsonSchemaFaults, AreFound)
{
    EXPECT_THAT(faultsOf(json::parse(R"({"items": {"type": "object", "properties": {"a": {}}}})"),
                         "photos.schema.json"),
                testing::ElementsAre("/items: not all keys are required",
                                     "/items: others are allowed", "/items/a: not described"));
}
