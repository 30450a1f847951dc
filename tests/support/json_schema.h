#ifndef IOSPHOTO_TESTS_JSON_SCHEMA_H
#define IOSPHOTO_TESTS_JSON_SCHEMA_H

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace iosphoto::test {

/// What a document has against a schema of docs/schema, such as "photos" for photos.schema.json:
/// a line for each complaint, so nothing where it fits.
std::string schemaComplaints(const std::string &schema, const nlohmann::json &document);

/// The schema itself.
nlohmann::json schemaDocument(const std::string &schema);

/// Where the schema lets a document that fits have other keys: those that it may lack, such as
/// "/photos/0/uuid", and the objects that may have one more, such as "/photos/0/*". Of each array
/// the first item is tried. Throws std::invalid_argument for a document that does not fit.
std::vector<std::string> freeKeys(const std::string &schema, nlohmann::json document);

} // namespace iosphoto::test

#endif // IOSPHOTO_TESTS_JSON_SCHEMA_H
