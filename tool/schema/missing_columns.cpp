#include "schema/missing_columns.h"

#include "formats/versions.h"
#include "schema/asset_tables.h"
#include "schema/known_schemas.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>

namespace iosphoto::tool {

namespace {

constexpr char attributes[] = "ZADDITIONALASSETATTRIBUTES";
constexpr char albums[] = "ZGENERICALBUM";

/// The table of a qualified name such as "ZASSET.ZHIDDEN".
std::optional<TableOfColumns> tableNamed(const CopyDatabase &database, const std::string &name)
{
    if (name == attributes)
        return TableOfColumns::Attributes;
    if (name == albums)
        return TableOfColumns::Albums;
    return name == assetTableOf(database) ? std::optional(TableOfColumns::Assets) : std::nullopt;
}

std::string nameOf(const CopyDatabase &database, TableOfColumns table)
{
    if (table == TableOfColumns::Attributes)
        return attributes;
    return table == TableOfColumns::Albums ? albums : assetTableOf(database);
}

constexpr char beginningOfColumn[] = "no such column: ";
constexpr char beginningOfTable[] = "no such table: ";

bool startsWith(const std::string &text, const std::string &beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

/// The column that SQLite says it misses; nothing where it is essential, or something else is
/// wrong.
std::optional<MissingColumn> columnMissedBy(const CopyDatabase &database, const std::string &words)
{
    if (!startsWith(words, beginningOfColumn))
        return std::nullopt;
    const std::string name = nameMissedIn(words);
    const std::size_t dot = name.find('.');
    const auto table = tableNamed(database, name.substr(0, std::min(dot, name.size())));
    const OptionalColumn *column = nullptr;
    if (dot == std::string::npos)
        column = findOptionalColumn(name);
    else if (table)
        column = findOptionalColumn(*table, name.substr(dot + 1));
    if (column == nullptr)
        return std::nullopt;
    return MissingColumn{nameOf(database, column->table), column};
}

void add(const CopyDatabase &database, const MissingColumn &missing)
{
    database.execute(fmt::format("alter table {} add column {} default {}", missing.table,
                                 missing.column->name, missing.column->standIn));
}

/// The columns that no statement misses where they are gone.
void addUnasked(const CopyDatabase &database, std::vector<MissingColumn> &columns)
{
    for (const OptionalColumn &column : optionalColumns()) {
        const MissingColumn missing = {nameOf(database, column.table), &column};
        if (column.isReadByStatements || database.hasColumn(missing.table, column.name))
            continue;
        add(database, missing);
        columns.push_back(missing);
    }
}

void addOnce(std::vector<std::string> &names, const std::vector<const char *> &more)
{
    for (const char *const name : more)
        if (std::find(names.begin(), names.end(), name) == names.end())
            names.emplace_back(name);
}

/// Gives a copy all that statements miss, whatever it is, and keeps the names.
class Completion
{
public:
    explicit Completion(const CopyDatabase &database) : database_(database) {}

    void complete(const std::string &statement)
    {
        for (std::string words = database_.misfitOf(statement); !words.empty() && give(words);
             words = database_.misfitOf(statement)) {
        }
    }

    const std::vector<std::string> &missing() const { return missing_; }

private:
    /// @return whether that could help
    bool give(const std::string &words)
    {
        const std::string name = nameMissedIn(words);
        if (startsWith(words, beginningOfTable)) {
            missing_.push_back(name);
            tables_.push_back(name);
            database_.execute(fmt::format("create table {} (Z_PK)", name));
            return true;
        }
        return startsWith(words, beginningOfColumn) && giveColumn(name);
    }

    bool giveColumn(const std::string &name)
    {
        const std::size_t dot = name.find('.');
        const std::string column = dot == std::string::npos ? name : name.substr(dot + 1);
        const std::string table = dot == std::string::npos ? tableFor(name) : name.substr(0, dot);
        if (!database_.hasTable(table) || database_.hasColumn(table, column))
            return false;
        database_.execute(fmt::format("alter table {} add column {}", table, column));
        if (std::find(tables_.begin(), tables_.end(), table) == tables_.end())
            missing_.push_back(fmt::format("{}.{}", table, column));
        return true;
    }

    /// What every library has, and the statements ask for by the name alone, is of the assets.
    std::string tableFor(const std::string &column) const
    {
        const OptionalColumn *const known = findOptionalColumn(column);
        return known != nullptr ? nameOf(database_, known->table) : assetTableOf(database_);
    }

    const CopyDatabase &database_;
    std::vector<std::string> tables_; ///< that were given
    std::vector<std::string> missing_;
};

} // namespace

std::string nameMissedIn(const std::string &words)
{
    for (const char *const beginning : {beginningOfColumn, beginningOfTable})
        if (startsWith(words, beginning))
            return words.substr(std::string(beginning).size());
    return words;
}

std::vector<std::string> findMissingNames(const CopyDatabase &database,
                                          const EntityNumbers &numbers, const Device &device)
{
    database.execute("begin");
    Completion completion(database);
    for (const StatementVariant *const variant : statementsFor(device))
        completion.complete(filledIn(*variant, numbers).toStdString());
    database.execute("rollback");
    return completion.missing();
}

std::pair<std::size_t, std::size_t> SchemaGaps::loss(const std::string &iosVersion) const
{
    return {fieldsLostWith(columns, iosVersion).size() + reasonsLostWith(columns).size(),
            columns.size()};
}

SchemaGaps addMissingColumns(const CopyDatabase &database, const EntityNumbers &numbers,
                             const Device &device)
{
    SchemaGaps gaps;
    for (const StatementVariant *const variant : statementsFor(device)) {
        const std::string statement = filledIn(*variant, numbers).toStdString();
        for (std::string words = database.misfitOf(statement); !words.empty();
             words = database.misfitOf(statement)) {
            const auto missing = columnMissedBy(database, words);
            if (!missing || database.hasColumn(missing->table, missing->column->name)) {
                gaps.essential = words;
                return gaps;
            }
            add(database, *missing);
            gaps.columns.push_back(*missing);
        }
    }
    addUnasked(database, gaps.columns);
    return gaps;
}

SchemaGaps findGaps(const CopyDatabase &database, const EntityNumbers &numbers,
                    const Device &device)
{
    database.execute("begin");
    const SchemaGaps gaps = addMissingColumns(database, numbers, device);
    database.execute("rollback");
    return gaps;
}

std::vector<std::string> fieldsLostWith(const std::vector<MissingColumn> &missing,
                                        const std::string &iosVersion)
{
    std::vector<std::string> lost;
    for (const MissingColumn &each : missing)
        if (firstNumber(iosVersion) <= each.column->lastIos)
            addOnce(lost, each.column->fields);
    return lost;
}

bool hasColumnsFor(const CopyDatabase &database, const std::vector<std::string> &fields)
{
    const auto tells = [&](const OptionalColumn &column, const std::string &field) {
        return std::find(column.fields.begin(), column.fields.end(), field) !=
                   column.fields.end() &&
               database.hasColumn(nameOf(database, column.table), column.name);
    };
    return std::all_of(fields.begin(), fields.end(), [&](const std::string &field) {
        return std::any_of(optionalColumns().begin(), optionalColumns().end(),
                           [&](const OptionalColumn &column) { return tells(column, field); });
    });
}

std::vector<std::string> reasonsLostWith(const std::vector<MissingColumn> &missing)
{
    std::vector<std::string> lost;
    for (const MissingColumn &each : missing)
        addOnce(lost, each.column->reasons);
    return lost;
}

} // namespace iosphoto::tool
