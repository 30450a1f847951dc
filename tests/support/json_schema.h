#ifndef IOSPHOTO_TESTS_JSON_SCHEMA_H
#define IOSPHOTO_TESTS_JSON_SCHEMA_H

#include <nlohmann/json.hpp>

#include <string>

namespace iosphoto::test {

/// What a document has against a schema of docs/schema, such as "photos" for photos.schema.json:
/// a line for each complaint, so nothing where it fits.
std::string schemaComplaints(const std::string &schema, const nlohmann::json &document);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_JSON_SCHEMA_H
