create table Z_PRIMARYKEY (
    Z_ENT integer primary key,
    Z_NAME varchar,
    Z_SUPER integer,
    Z_MAX integer
);
insert into Z_PRIMARYKEY (Z_ENT, Z_NAME, Z_SUPER, Z_MAX) values
    (3, 'Asset', 0, 0),
    (29, 'GenericAlbum', 0, 0),
    (30, 'Album', 29, 0),
    (34, 'PhotoStreamAlbum', 30, 0);

create table ZASSET (
    Z_PK integer primary key,
    Z_ENT integer,
    Z_OPT integer,
    ZADJUSTMENTSSTATE integer,
    ZAVALANCHEPICKTYPE integer,
    ZDEPTHTYPE integer,
    ZFAVORITE integer,
    ZHEIGHT integer,
    ZHIDDEN integer,
    ZKIND integer,
    ZKINDSUBTYPE integer,
    ZPACKEDBADGEATTRIBUTES integer,
    ZPLAYBACKSTYLE integer,
    ZSAVEDASSETTYPE integer,
    ZTHUMBNAILINDEX integer,
    ZTRASHEDSTATE integer,
    ZVISIBILITYSTATE integer,
    ZWIDTH integer,
    ZADDEDDATE timestamp,
    ZDATECREATED timestamp,
    ZDURATION float,
    ZMODIFICATIONDATE timestamp,
    ZSORTTOKEN float,
    ZTRASHEDDATE timestamp,
    ZAVALANCHEUUID varchar,
    ZCLOUDASSETGUID varchar,
    ZDIRECTORY varchar,
    ZFILENAME varchar,
    ZUNIFORMTYPEIDENTIFIER varchar,
    ZUUID varchar
);

create table ZADDITIONALASSETATTRIBUTES (
    Z_PK integer primary key,
    Z_ENT integer,
    Z_OPT integer,
    ZCAMERACAPTUREDEVICE integer,
    ZEMBEDDEDTHUMBNAILHEIGHT integer,
    ZORIGINALFILESIZE integer,
    ZORIGINALHEIGHT integer,
    ZORIGINALWIDTH integer,
    ZVIDEOCPDURATIONTIMESCALE integer,
    ZASSET integer,
    ZEDITORBUNDLEID varchar,
    ZORIGINALFILENAME varchar
);

create table ZGENERICALBUM (
    Z_PK integer primary key,
    Z_ENT integer,
    Z_OPT integer,
    ZCACHEDCOUNT integer,
    ZCACHEDPHOTOSCOUNT integer,
    ZCACHEDVIDEOSCOUNT integer,
    ZKIND integer,
    ZTRASHEDSTATE integer,
    ZTRASHEDDATE timestamp,
    ZTITLE varchar,
    ZUUID varchar
);

create table Z_30ASSETS (
    Z_30ALBUMS integer,
    Z_3ASSETS integer,
    primary key (Z_30ALBUMS, Z_3ASSETS)
);
