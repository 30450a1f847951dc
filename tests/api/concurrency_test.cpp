#include "model/store/database_visit.h"
#include "support/catalogue.h"

#include <QMutexLocker>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <thread>

using namespace iosphoto;
using namespace iosphoto::test;

namespace {

constexpr int readings = 10; // of each thread

/// A library that differs from those of other numbers in all that a reading shows.
std::unique_ptr<LibraryBuilder> makeLibrary(const Schema &schema, int number)
{
    auto library = std::make_unique<LibraryBuilder>(schema);
    const std::string text = std::to_string(number);
    const AlbumRow album = library->album("Album " + text);
    for (int i = 0; i <= number; ++i)
        library->asset("IMG_" + text + "_" + std::to_string(i) + ".JPG").in(album);
    return library;
}

/// What one reading found, as text.
std::string readOnce(const LibraryBuilder &library)
{
    const Catalogue catalogue(library);
    std::string text = std::to_string(catalogue.result);
    for (const CAlbumGroup &album : catalogue.albums) {
        text += "\n" + album.albumName.toStdString() + ":";
        for (const std::string &file : files(&album))
            text += " " + file;
    }
    return text;
}

} // namespace

TEST(Concurrency, ThreadsThatReadDifferentLibrariesEachGetTheirOwn)
{
    const Schema schemas[] = {ios7, ios9, ios14, ios18};
    std::vector<std::unique_ptr<LibraryBuilder>> libraries;
    std::vector<std::string> expected;
    for (const Schema &schema : schemas) {
        libraries.push_back(makeLibrary(schema, static_cast<int>(libraries.size())));
        expected.push_back(readOnce(*libraries.back()));
    }

    std::vector<std::vector<std::string>> found(libraries.size());
    std::atomic<bool> start{false};
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < libraries.size(); ++i)
        threads.emplace_back([&, i] {
            while (!start)
                std::this_thread::yield();
            for (int reading = 0; reading < readings; ++reading)
                found[i].push_back(readOnce(*libraries[i]));
        });
    start = true;
    for (std::thread &thread : threads)
        thread.join();

    for (std::size_t i = 0; i < libraries.size(); ++i) {
        EXPECT_NE(expected[i].find("IMG_" + std::to_string(i) + "_0.JPG"), std::string::npos);
        EXPECT_EQ(found[i], std::vector<std::string>(readings, expected[i])) << schemas[i];
    }
}

TEST(Concurrency, ReadingWaitsForTheLock)
{
    const auto library = makeLibrary(ios15, 1);
    QMutexLocker holder(&g_Lock);
    auto reading = std::async(std::launch::async, [&] { return readOnce(*library); });
    EXPECT_EQ(reading.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
    holder.unlock();
    EXPECT_NE(reading.get().find("IMG_1_1.JPG"), std::string::npos);
}
