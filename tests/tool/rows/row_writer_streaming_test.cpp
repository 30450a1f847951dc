#include "rows/csv_writer.h"
#include "rows/json_writers.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

using namespace iosphoto::tool;

namespace {

using MakeWriter = std::unique_ptr<RowWriter> (*)(std::ostream &out);

template <typename Writer>
std::unique_ptr<RowWriter> make(std::ostream &out)
{
    return std::make_unique<Writer>(out);
}

} // namespace

class StreamingRows : public testing::TestWithParam<MakeWriter>
{
};

TEST_P(StreamingRows, KeepNoMoreThan64KiBUntilTheEnd)
{
    constexpr std::size_t kept = 1 << 16;
    constexpr std::size_t cell = 1000;
    constexpr int rows = 1000;
    std::ostringstream out;
    const std::unique_ptr<RowWriter> writer = GetParam()(out);
    writer->begin({"photos", {}, {{"source", "Photos.sqlite"}}}, {{"path", Type::Text}});
    for (std::size_t written = cell; written <= rows * cell; written += cell) {
        writer->row({std::string(cell, 'x')});
        ASSERT_GE(out.str().size() + kept, written);
    }
    const std::size_t before = out.str().size();
    writer->end();
    EXPECT_LT(out.str().size() - before, kept + 2 * cell);
}

INSTANTIATE_TEST_SUITE_P(Formats, StreamingRows,
                         testing::Values(make<JsonLinesWriter>, make<CsvWriter>),
                         [](const auto &format) { return format.index == 0 ? "Jsonl" : "Csv"; });
