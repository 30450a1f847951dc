#include "support/photo_fields.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

using namespace iosphoto::test;

namespace {

// Each changes a value in place, as text that two records shared would show.
void change(bool &value)
{
    value = !value;
}

void change(QString &value)
{
    value.append(QLatin1Char('x'));
}

void change(std::string &value)
{
    value += 'x';
}

template <typename Number>
void change(Number &value)
{
    value += 7;
}

/// A record in which no field has its default, each time the same.
CPhotoData filledPhoto()
{
    CPhotoData photo;
    int number = 0;
    visitPhotoFields([&](const char *name, auto field) {
        auto &value = photo.*field;
        using Field = std::decay_t<decltype(value)>;
        ++number;
        if constexpr (std::is_same_v<Field, bool>)
            value = !value;
        else if constexpr (std::is_arithmetic_v<Field>)
            value = static_cast<Field>(number);
        else
            value = name;
    });
    return photo;
}

void changeEveryField(CPhotoData &photo)
{
    visitPhotoFields([&](const char *, auto field) { change(photo.*field); });
}

std::unique_ptr<CPhotoData> clone(const CPhotoData &photo)
{
    return std::unique_ptr<CPhotoData>(CPhotoData::GetPhotoDataClone(&photo));
}

} // namespace

TEST(PhotoData, StartsWithoutAnAssetAndValidAndAllElseZeroOrEmpty)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr); // and so does without one
    const CPhotoData photo;
    visitPhotoFields([&](const char *name, auto field) {
        const auto &value = photo.*field;
        using Field = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Field, bool>)
            EXPECT_EQ(value, std::string(name) == "isValid") << name;
        else if constexpr (std::is_same_v<Field, std::int32_t>)
            EXPECT_EQ(value, std::string(name) == "assetId" ? -1 : 0) << name;
        else
            EXPECT_EQ(value, Field()) << name;
    });
    EXPECT_TRUE(photo.thumbnail.isNull());
}

TEST(PhotoData, CloneEqualsItsSourceFieldByField)
{
    const CPhotoData source = filledPhoto();
    const auto copy = clone(source);
    EXPECT_NE(copy.get(), &source);
    expectSamePhoto(*copy, filledPhoto());
}

TEST(PhotoData, CloneCarriesAFieldThatAloneDiffers)
{
    visitPhotoFields([](const char *name, auto field) {
        SCOPED_TRACE(name);
        CPhotoData source;
        change(source.*field);
        const auto copy = clone(source);
        EXPECT_NE(copy.get()->*field, CPhotoData().*field);
        expectSamePhoto(*copy, source);
    });
}

TEST(PhotoData, LaterChangesOfTheSourceDoNotShowInTheClone)
{
    CPhotoData source = filledPhoto();
    const auto copy = clone(source);
    changeEveryField(source);
    expectSamePhoto(*copy, filledPhoto());
}

TEST(PhotoData, LaterChangesOfTheCloneDoNotShowInTheSource)
{
    const CPhotoData source = filledPhoto();
    const auto copy = clone(source);
    changeEveryField(*copy);
    expectSamePhoto(source, filledPhoto());
}

TEST(PhotoData, CloneOutlivesItsSource)
{
    auto source = std::make_unique<CPhotoData>(filledPhoto());
    const auto copy = clone(*source);
    source.reset();
    expectSamePhoto(*copy, filledPhoto());
}

TEST(PhotoData, CloneOfNothingIsNothing)
{
    EXPECT_EQ(CPhotoData::GetPhotoDataClone(nullptr), nullptr);
}

TEST(PhotoData, CopiesAndAssignmentsEqualTheirSource)
{
    CPhotoData source = filledPhoto();
    const CPhotoData copy(source);
    CPhotoData assigned;
    changeEveryField(assigned);
    assigned = source;
    changeEveryField(source);
    expectSamePhoto(copy, filledPhoto());
    expectSamePhoto(assigned, filledPhoto());
}

TEST(PhotoData, AssignedToItselfStaysAsItIs)
{
    CPhotoData photo = filledPhoto();
    const CPhotoData &same = photo;
    photo = same;
    expectSamePhoto(photo, filledPhoto());
}

TEST(PhotoData, CloneCarriesAPictureThatTheHostPutIn)
{
    qputenv("QT_QPA_PLATFORM", "minimal");
    char name[] = "test";
    char *arguments[] = {name, nullptr};
    int count = 1;
    const QGuiApplication application(count, arguments);
    CPhotoData source;
    source.thumbnail = QPixmap(3, 2);
    source.thumbnail.fill(Qt::red);

    const auto copy = clone(source);
    source.thumbnail.fill(Qt::blue);

    EXPECT_EQ(copy->thumbnail.size(), QSize(3, 2));
    EXPECT_EQ(copy->thumbnail.toImage().pixelColor(0, 0), QColor(Qt::red));
}
