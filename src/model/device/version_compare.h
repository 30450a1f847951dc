#ifndef IOSPHOTO_VERSION_COMPARE_H
#define IOSPHOTO_VERSION_COMPARE_H

#include <QStringView>

#include <string>

namespace iosphoto {

/// Compares two dotted decimal versions as cmpiOSVersion() does.
int compareVersions(const std::string &a, const std::string &b) noexcept;

/// Compares two product types as cmpProductVersion() does.
int compareModels(QStringView a, QStringView b) noexcept;

} // namespace iosphoto

#endif // IOSPHOTO_VERSION_COMPARE_H
