#ifndef IOSPHOTO_ROW_H
#define IOSPHOTO_ROW_H

#include <QString>

#include <cstdint>
#include <string>

struct sqlite3_stmt;

namespace iosphoto {

/// The row that a statement stands on. Values are converted as SQLite does it, whatever the column
/// holds. A column that the statement does not have reads as NULL, and so do negative numbers,
/// which stand for a column that a pass does without.
class Row
{
public:
    explicit Row(sqlite3_stmt *statement);

    bool isNull(int column) const;
    std::int32_t int32(int column) const; ///< the low 32 bits; 0 for NULL
    std::int64_t int64(int column) const; ///< 0 for NULL
    double real(int column) const;        ///< 0 for NULL

    /// The text up to its first zero byte; a null pointer for NULL. Valid until the same column is
    /// read in another way or the statement moves on.
    const char *cString(int column) const;
    QString text(int column) const;      ///< empty for NULL
    std::string bytes(int column) const; ///< the text's bytes; empty for NULL
    std::string hex(int column) const;   ///< the blob in lower-case hexadecimal; empty for NULL
    bool hasText(int column) const;      ///< neither NULL nor empty
    bool haveSameText(int one, int other) const; ///< false for NULL

private:
    bool has(int column) const { return column >= 0 && column < columnCount_; }

    sqlite3_stmt *statement_;
    int columnCount_;
};

} // namespace iosphoto

#endif // IOSPHOTO_ROW_H
