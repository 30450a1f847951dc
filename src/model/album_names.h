/// The display names of the built-in albums, as the source texts of their translation.
#ifndef IOSPHOTO_ALBUM_NAMES_H
#define IOSPHOTO_ALBUM_NAMES_H

#include <QtGlobal>

namespace iosphoto::album_names {

constexpr const char *cameraRoll = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "相机胶卷");
constexpr const char *photoStream = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "我的照片流");
constexpr const char *photoLibrary = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "照片图库");
constexpr const char *videos = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "视频");
constexpr const char *timeLapse = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "延时摄影");
constexpr const char *sloMo = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "慢动作");
constexpr const char *panoramas = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "全景照片");
constexpr const char *bursts = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "连拍快照");
constexpr const char *recentlyDeleted = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "最近删除");
constexpr const char *screenshotsBeforeIos9 = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕截图");
constexpr const char *screenshots = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕快照");
constexpr const char *favorites = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "个人收藏");
constexpr const char *selfies = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "自拍");
constexpr const char *livePhotos = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "实况照片");
constexpr const char *portrait = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "人像");
constexpr const char *animated = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "动图");
constexpr const char *screenRecordings = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "屏幕录制");
constexpr const char *raw = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "RAW");
constexpr const char *proRes = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "ProRes");
constexpr const char *hidden = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "已隐藏");
constexpr const char *allDeleted = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "所有删除测试");

/// Titles that a computer's import gives its two albums, by which they are recognised.
constexpr const char *importedCameraRoll = QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "电脑导入相机胶卷");
constexpr const char *importedPhotoLibrary =
    QT_TRANSLATE_NOOP("QDevPhotoDbMgr", "电脑导入照片图库");

} // namespace iosphoto::album_names

#endif // IOSPHOTO_ALBUM_NAMES_H
