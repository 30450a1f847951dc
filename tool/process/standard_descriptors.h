#ifndef IOSPHOTO_TOOL_STANDARD_DESCRIPTORS_H
#define IOSPHOTO_TOOL_STANDARD_DESCRIPTORS_H

namespace iosphoto::tool {

/// Takes those of the descriptors of standard input, output and error that are closed, so that no
/// file gets one and with it what is printed. To be called before any file is opened. Using one
/// remains an error.
void occupyStandardDescriptors();

} // namespace iosphoto::tool

#endif // IOSPHOTO_TOOL_STANDARD_DESCRIPTORS_H
