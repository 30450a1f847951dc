#include "support/csv_reader.h"

#include <stdexcept>

namespace iosphoto::test {

namespace {

/// Takes a text apart, cell by cell.
class CsvText
{
public:
    explicit CsvText(const std::string &text) : text_(text) {}

    bool isAtEnd() const { return at_ == text_.size(); }

    std::vector<std::string> line()
    {
        std::vector<std::string> cells = {cell()};
        while (take(","))
            cells.push_back(cell());
        if (!take("\r\n"))
            throw std::runtime_error("no line end at " + std::to_string(at_));
        return cells;
    }

private:
    bool take(const std::string &expected)
    {
        if (text_.compare(at_, expected.size(), expected) != 0)
            return false;
        at_ += expected.size();
        return true;
    }

    std::string cell()
    {
        if (take("\""))
            return quotedCell();
        const std::size_t end = std::min(text_.find_first_of(",\"\r\n", at_), text_.size());
        std::string content = text_.substr(at_, end - at_);
        at_ = end;
        return content;
    }

    std::string quotedCell()
    {
        std::string content;
        while (true) {
            const std::size_t quote = text_.find('"', at_);
            if (quote == std::string::npos)
                throw std::runtime_error("a quote is not closed");
            content += text_.substr(at_, quote - at_);
            at_ = quote + 1;
            if (!take("\""))
                return content;
            content += '"';
        }
    }

    const std::string &text_;
    std::size_t at_ = 0;
};

} // namespace

std::vector<CsvRow> readCsv(const std::string &text)
{
    CsvText csv(text);
    const std::vector<std::string> headings = csv.line();
    std::vector<CsvRow> rows;
    while (!csv.isAtEnd()) {
        const std::vector<std::string> cells = csv.line();
        if (cells.size() != headings.size())
            throw std::runtime_error("a line has " + std::to_string(cells.size()) + " cells");
        CsvRow &row = rows.emplace_back();
        for (std::size_t i = 0; i < cells.size(); ++i)
            row[headings[i]] = cells[i];
    }
    return rows;
}

} // namespace iosphoto::test
