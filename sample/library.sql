-- A small library with every kind of album that a catalogue can show, for the iOS 15 schema.
-- Times are seconds since 2001-01-01 00:00 UTC, as everywhere in a photo database.

-- The assets: a file name, its type, the day it was taken, its size in pixels and bytes.
create temp table photo (
    key integer primary key, file text, type text, taken text, width integer, height integer,
    bytes integer);
insert into photo values
    (1,  'IMG_0001.HEIC', 'public.heic',               '2023-05-01 09:12', 4032, 3024, 1812345),
    (2,  'IMG_0002.HEIC', 'public.heic',               '2023-05-01 09:15', 3024, 4032, 2012345),
    (3,  'IMG_0003.MOV',  'com.apple.quicktime-movie', '2023-05-02 18:40', 1920, 1080, 48123456),
    (4,  'IMG_0004.MOV',  'com.apple.quicktime-movie', '2023-05-03 05:58', 1920, 1080, 90123456),
    (5,  'IMG_0005.MOV',  'com.apple.quicktime-movie', '2023-05-03 12:01', 1920, 1080, 70123456),
    (6,  'IMG_0006.MP4',  'public.mpeg-4',             '2023-05-03 20:30', 1170, 2532, 9123456),
    (7,  'IMG_0007.HEIC', 'public.heic',               '2023-05-04 11:00', 9716, 3872, 8123456),
    (8,  'IMG_0008.HEIC', 'public.heic',               '2023-05-05 14:20', 4032, 3024, 1712345),
    (9,  'IMG_0009.HEIC', 'public.heic',               '2023-05-05 14:20', 4032, 3024, 1713345),
    (10, 'IMG_0010.HEIC', 'public.heic',               '2023-05-05 14:20', 4032, 3024, 1714345),
    (11, 'IMG_0011.PNG',  'public.png',                '2023-05-06 08:00', 1170, 2532, 512345),
    (12, 'IMG_0012.GIF',  'com.compuserve.gif',        '2023-05-06 21:10', 480,  480,  2123456),
    (13, 'IMG_0013.HEIC', 'public.heic',               '2023-05-07 16:45', 3024, 4032, 1912345),
    (14, 'IMG_0014.DNG',  'com.adobe.raw-image',       '2023-05-08 06:30', 4032, 3024, 25123456),
    (15, 'IMG_0015.MOV',  'com.apple.quicktime-movie', '2023-05-08 06:40', 3840, 2160, 801234567),
    (16, 'IMG_0016.HEIC', 'public.heic',               '2023-05-09 22:05', 4032, 3024, 1612345),
    (17, 'IMG_0017.HEIC', 'public.heic',               '2023-05-10 10:10', 4032, 3024, 1512345),
    (18, 'IMG_0018.HEIC', 'public.heic',               '2023-05-11 13:37', 4032, 3024, 1412345),
    (19, 'IMG_0101.JPG',  'public.jpeg',               '2015-08-01 12:00', 2048, 1536, 812345),
    (20, 'IMG_0102.JPG',  'public.jpeg',               '2015-08-02 12:00', 6000, 1400, 912345),
    (21, 'IMG_0103.JPG',  'public.jpeg',               '2015-08-03 12:00', 1536, 2048, 712345),
    (22, 'IMG_0104.JPG',  'public.jpeg',               '2015-08-04 12:00', 2048, 1536, 612345);

insert into ZASSET (Z_PK, Z_ENT, ZFILENAME, ZDIRECTORY, ZUUID, ZUNIFORMTYPEIDENTIFIER, ZWIDTH, ZHEIGHT,
                    ZDATECREATED, ZMODIFICATIONDATE, ZADDEDDATE, ZSAVEDASSETTYPE, ZTRASHEDSTATE,
                    ZTHUMBNAILINDEX, ZDURATION)
    select key, 3, file, 'DCIM/100APPLE', printf('5A3D1F00-0000-4000-8000-%012d', key), type, width,
           height, strftime('%s', taken) - 978307200, strftime('%s', taken) - 978307200,
           strftime('%s', taken) - 978307200, 3, 0, key, 0
    from photo;
insert into ZADDITIONALASSETATTRIBUTES (Z_PK, ZASSET, ZORIGINALFILENAME, ZORIGINALFILESIZE,
                                        ZEMBEDDEDTHUMBNAILHEIGHT)
    select key, key, file, bytes, 120 from photo;

-- What the device knows of some of them.
update ZASSET set ZFAVORITE = 1 where Z_PK in (1, 13);
update ZASSET set ZHASADJUSTMENTS = 1 where Z_PK = 2;
update ZASSET set ZDURATION = 12.5 where Z_PK in (3, 4, 5, 6, 15);
update ZASSET set ZKINDSUBTYPE = 102 where Z_PK = 4;  -- time-lapse
update ZASSET set ZKINDSUBTYPE = 101 where Z_PK = 5;  -- slow motion
update ZASSET set ZKINDSUBTYPE = 103 where Z_PK = 6;  -- screen recording
update ZASSET set ZKINDSUBTYPE = 1 where Z_PK in (7, 20);  -- panorama
update ZASSET set ZAVALANCHEUUID = 'B0B0B0B0-0000-4000-8000-000000000001' where Z_PK in (8, 9, 10);
update ZASSET set ZAVALANCHEPICKTYPE = iif(Z_PK = 8, 20, 2) where Z_PK in (8, 9, 10);  -- a burst
update ZASSET set ZKINDSUBTYPE = 10 where Z_PK in (11, 22);  -- screenshot
update ZASSET set ZPLAYBACKSTYLE = 2 where Z_PK = 12;  -- animated
update ZASSET set ZDEPTHTYPE = 1 where Z_PK in (13, 21);  -- portrait
update ZASSET set ZPACKEDBADGEATTRIBUTES = 6 where Z_PK = 14;  -- ProRAW
update ZASSET set ZPACKEDBADGEATTRIBUTES = 8 where Z_PK = 15;  -- ProRes
update ZASSET set ZHIDDEN = 1 where Z_PK = 16;
update ZASSET set ZTRASHEDSTATE = 1, ZTRASHEDDATE = strftime('%s', '2023-05-15 20:00') - 978307200
    where Z_PK = 17;
update ZADDITIONALASSETATTRIBUTES set ZVIDEOCPDURATIONTIMESCALE = 600 where ZASSET = 1;  -- live
update ZADDITIONALASSETATTRIBUTES set ZCAMERACAPTUREDEVICE = 1 where ZASSET in (2, 19);  -- selfie

-- Synced from a computer.
update ZASSET set ZSAVEDASSETTYPE = 256, ZDIRECTORY = 'PhotoData/Sync/100SYNCD',
                  ZUUID = printf('00000000-0000-0000-0000-%012d', Z_PK)
    where Z_PK in (19, 20, 21, 22);

-- Albums: of the user (ZKIND 2), imported from a computer, without a title, and the photo stream.
insert into ZGENERICALBUM (Z_PK, Z_ENT, ZKIND, ZTITLE, ZUUID, ZTRASHEDSTATE) values
    (1, 27, 2,    'Weekend at the lake', 'A1B0A1B0-0000-4000-8000-000000000001', 0),
    (2, 27, 2,    '电脑导入相机胶卷',    'A1B0A1B0-0000-4000-8000-000000000002', 0),
    (3, 27, 1552, '电脑导入照片图库',    'A1B0A1B0-0000-4000-8000-000000000003', 0),
    (4, 27, 2,    '',                    'A1B0A1B0-0000-4000-8000-000000000004', 0),
    (5, 30, 1500, 'My Photo Stream',     'A1B0A1B0-0000-4000-8000-000000000005', 0);
insert into Z_27ASSETS (Z_27ALBUMS, Z_3ASSETS) values
    (1, 1), (1, 2), (1, 3),
    (2, 1),
    (3, 19), (3, 20), (3, 21), (3, 22),
    (5, 18);

-- Which schema it has, and the build of the system that made it.
create table Z_METADATA (Z_VERSION integer primary key, Z_UUID varchar, Z_PLIST blob);
insert into Z_METADATA values (1, 'A1B0A1B0-0000-4000-8000-00000000000F', cast('<plist version="1.0">
    <dict><key>PLModelVersion</key><integer>15502</integer></dict></plist>' as blob));
create table ZMIGRATIONHISTORY (ZINDEX integer, ZMODELVERSION integer, ZOSVERSION varchar);
insert into ZMIGRATIONHISTORY values (0, 15502, '19H12');
