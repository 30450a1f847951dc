#ifndef IOSPHOTO_TOOL_ASSETS_H
#define IOSPHOTO_TOOL_ASSETS_H

#include "catalogue/record_links.h"
#include "catalogue/records.h"
#include "ios_photo.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace iosphoto::tool {

/// Adds what another record of the same asset knows: albums of the table do not say everything that
/// the Camera Roll does, nor the other way round.
void addFacts(CPhotoData &facts, const CPhotoData &record);

/// One photo or video of a catalogue: all its records, in the order of their albums. There is at
/// least one.
class Asset
{
public:
    /// Goes from one of its records to the next.
    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Appearance;
        using difference_type = std::ptrdiff_t;
        using pointer = const Appearance *;
        using reference = Appearance; // an iterator may be gone when it is used

        Iterator(const Records &records, const Appearance &here) : records_(&records), here_(here)
        {
        }

        reference operator*() const { return here_; }
        pointer operator->() const { return &here_; }
        Iterator &operator++()
        {
            const RecordNumber next = linkOf(*here_.record).next;
            here_ = next != noRecord ? (*records_)[next] : Appearance{};
            return *this;
        }
        bool operator!=(const Iterator &other) const { return here_.record != other.here_.record; }
        bool operator==(const Iterator &other) const { return here_.record == other.here_.record; }

    private:
        const Records *records_;
        Appearance here_;
    };

    /// @param records  that are linked; they have to outlive the asset
    /// @param number  of its first one
    Asset(const Records &records, RecordNumber number) : Asset(records, number, records[number]) {}
    Asset(const Records &records, RecordNumber number, const Appearance &first)
        : records_(&records), number_(number), first_(first)
    {
    }

    Iterator begin() const { return {*records_, first_}; }
    Iterator end() const { return {*records_, {}}; }

    RecordNumber number() const { return number_; } ///< of its first record
    bool isOf(const Records &records) const { return records_ == &records; }
    const CPhotoData &firstRecord() const { return *first_.record; }

    const std::string &uuid() const { return firstRecord().uuid; }

    /// Such as "DCIM/100APPLE/IMG_0001.HEIC".
    std::string path() const;

    /// Whether any of its records has a flag; as facts() says, but quicker.
    bool has(bool CPhotoData::*flag) const;

    /// The first record, with what others know besides: every flag that any of them has, and the
    /// duration, row key and burst, which not all albums read.
    CPhotoData facts() const;

    /// The albums that show it, each once.
    std::vector<const CAlbumGroup *> albums() const;

private:
    const Records *records_;
    RecordNumber number_;
    Appearance first_;
};

/// Every asset of a catalogue once, in the order in which its albums first show it.
///
/// Neither the list nor an asset holds more than numbers: what belongs together is noted in the
/// records themselves (record_links.h).
class AssetList
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Asset;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = Asset;

        Iterator(const Records &records, RecordNumber number);

        Asset operator*() const { return {*records_, number_, here_}; }
        Iterator &operator++();
        bool operator!=(const Iterator &other) const { return number_ != other.number_; }
        bool operator==(const Iterator &other) const { return number_ == other.number_; }

    private:
        void step();

        const Records *records_;
        RecordNumber number_;
        Appearance here_ = {};
    };

    /// @param catalogue  has to outlive the list, and the list its assets
    explicit AssetList(const std::vector<CAlbumGroup> &catalogue);
    /// Photos that no album shows, each of them one asset.
    explicit AssetList(const std::vector<std::unique_ptr<CPhotoData>> &photos);
    AssetList(const AssetList &) = delete;
    AssetList &operator=(const AssetList &) = delete;

    std::size_t size() const { return size_; }
    Iterator begin() const { return {records_, 0}; }
    Iterator end() const { return {records_, records_.count()}; }

    /// The asset whose first record has a number.
    Asset at(RecordNumber number) const { return {records_, number}; }
    const Records &records() const { return records_; }

private:
    std::vector<CAlbumGroup> unshown_; ///< photos that no album shows
    Records records_;
    std::size_t size_;
};

/// Some assets of two lists in an order of their own. They take four bytes each.
class ChosenAssets
{
public:
    class Iterator
    {
    public:
        Iterator(const ChosenAssets &assets, std::size_t index) : assets_(&assets), index_(index) {}

        Asset operator*() const { return (*assets_)[index_]; }
        Iterator &operator++()
        {
            ++index_;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return index_ != other.index_; }

    private:
        const ChosenAssets *assets_;
        std::size_t index_;
    };

    /// @param assets, others  have to outlive this
    ChosenAssets(const AssetList &assets, const AssetList &others)
        : assets_(&assets), others_(&others)
    {
        numbers_.reserve(assets.size()); // not to be copied when most are chosen
    }

    /// @param asset  of one of the lists
    void push_back(const Asset &asset) { numbers_.push_back(numberOf(asset)); }
    bool empty() const { return numbers_.empty(); }
    std::size_t size() const { return numbers_.size(); }
    Asset operator[](std::size_t index) const { return at(numbers_[index]); }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }

    /// Numbers of the chosen ones, to put them into another order.
    std::vector<RecordNumber> &numbers() { return numbers_; }
    Asset at(RecordNumber number) const
    {
        return number < firstOther() ? assets_->at(number) : others_->at(number - firstOther());
    }

private:
    RecordNumber firstOther() const { return assets_->records().count(); }
    RecordNumber numberOf(const Asset &asset) const
    {
        return asset.isOf(assets_->records()) ? asset.number() : firstOther() + asset.number();
    }

    const AssetList *assets_;
    const AssetList *others_; ///< numbered behind the last record of the first
    std::vector<RecordNumber> numbers_;
};

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_ASSETS_H
