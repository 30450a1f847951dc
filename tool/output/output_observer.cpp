#include "output/output_observer.h"

namespace iosphoto::tool {

namespace {

OutputObserver *theOne = nullptr;

} // namespace

OutputObserver::OutputObserver()
{
    theOne = this;
}

OutputObserver::~OutputObserver()
{
    stopObserving();
}

void OutputObserver::stopObserving()
{
    theOne = nullptr;
}

OutputObserver *OutputObserver::current()
{
    return theOne;
}

} // namespace iosphoto::tool
