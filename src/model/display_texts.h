/// The texts that hosts show. The Chinese texts are the sources of their translations.
#ifndef IOSPHOTO_DISPLAY_TEXTS_H
#define IOSPHOTO_DISPLAY_TEXTS_H

#include <QString>
#include <QtGlobal>

namespace iosphoto {

/// One of the texts below in the language of the translators that the host installed, as
/// QDevPhotoDbMgr::tr() gives it.
QString translated(const char *displayText);

// clang-format off
namespace display_text {

// The albums.
constexpr auto cameraRoll = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "相机胶卷"); // Camera Roll
constexpr auto photoStream = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "我的照片流"); // My Photo Stream
constexpr auto photoLibrary = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "照片图库"); // Photo Library
constexpr auto videos = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "视频"); // Videos
constexpr auto timeLapse = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "延时摄影"); // Time-lapse
constexpr auto sloMo = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "慢动作"); // Slo-mo
constexpr auto panoramas = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "全景照片"); // Panoramas
constexpr auto bursts = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "连拍快照"); // Bursts
constexpr auto recentlyDeleted = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "最近删除"); // Recently Deleted
constexpr auto screenshotsBeforeIos9 = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕截图"); // Screenshots (older word)
constexpr auto screenshots = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕快照"); // Screenshots
constexpr auto favorites = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "个人收藏"); // Favorites
constexpr auto selfies = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "自拍"); // Selfies
constexpr auto livePhotos = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "实况照片"); // Live Photos
constexpr auto portrait = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "人像"); // Portrait
constexpr auto animated = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "动图"); // Animated
constexpr auto screenRecordings = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕录制"); // Screen Recordings
constexpr auto raw = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "RAW");
constexpr auto proRes = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "ProRes");
constexpr auto hidden = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "已隐藏"); // Hidden
constexpr auto allDeleted = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "所有删除测试"); // All Deleted (test)

// The titles that a computer gives the two albums it imports, by which they are recognised.
constexpr auto importedCameraRoll = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "电脑导入相机胶卷"); // imported Camera Roll
constexpr auto importedPhotoLibrary = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "电脑导入照片图库"); // imported Photo Library

// The day of a photo whose date is not known.
constexpr auto unknownDate = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "未知"); // unknown

} // namespace display_text
// clang-format on

} // namespace iosphoto

#endif // IOSPHOTO_DISPLAY_TEXTS_H
