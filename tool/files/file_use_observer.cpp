#include "files/file_use_observer.h"

namespace iosphoto::tool {

namespace {

FileUseObserver *theOne = nullptr;

} // namespace

FileUseObserver::FileUseObserver()
{
    theOne = this;
}

FileUseObserver::~FileUseObserver()
{
    stopObserving();
}

void FileUseObserver::stopObserving()
{
    theOne = nullptr;
}

FileUseObserver *FileUseObserver::current()
{
    return theOne;
}

void FileUseObserver::announceReading(const std::vector<std::filesystem::path> &files)
{
    if (theOne != nullptr)
        theOne->willRead(files);
}

} // namespace iosphoto::tool
