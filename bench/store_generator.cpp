#include "store_generator.h"

#include "store_writer.h"

namespace iosphoto::bench {

namespace {

void addAlbums(StoreWriter &store, const StoreShape &shape)
{
    for (int album = 1; album <= shape.albums; ++album) {
        store.addAlbum(album, shape.photosPerAlbum);
        const auto first =
            static_cast<int>(static_cast<long long>(album - 1) * shape.assets / shape.albums);
        for (int photo = 0; photo < shape.photosPerAlbum; ++photo)
            store.addToAlbum(album, (first + photo) % shape.assets + 1);
    }
}

void addAssets(StoreWriter &store, const StoreShape &shape, int first, int last)
{
    for (int key = first; key <= last; ++key)
        store.addAsset(AssetValues(key, shape));
}

} // namespace

void generateStore(const std::filesystem::path &database, const StoreShape &shape)
{
    const int inLog = shape.hasLog ? shape.assets / 10 : 0;
    const int inDatabase = shape.assets - inLog;
    {
        StoreWriter store(database);
        addAlbums(store, shape);
        addAssets(store, shape, 1, inDatabase);
        store.createIndexes();
        if (shape.hasLog)
            store.continueInLog();
        addAssets(store, shape, inDatabase + 1, shape.assets);
        store.commit();
    }
    // A copy of a library has none.
    std::filesystem::remove(database.string() + "-shm");
}

} // namespace iosphoto::bench
