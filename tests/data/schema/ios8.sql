create table Z_PRIMARYKEY (
    Z_ENT integer primary key,
    Z_NAME varchar,
    Z_SUPER integer,
    Z_MAX integer
);
insert into Z_PRIMARYKEY (Z_ENT, Z_NAME, Z_SUPER, Z_MAX) values
    (14, 'GenericAlbum', 0, 0),
    (15, 'Album', 14, 0),
    (19, 'PhotoStreamAlbum', 15, 0),
    (22, 'GenericAsset', 0, 0),
    (24, 'Asset', 22, 0);

create table ZGENERICASSET (
    Z_PK integer primary key,
    Z_ENT integer,
    Z_OPT integer,
    ZAVALANCHEPICKTYPE integer,
    ZFAVORITE integer,
    ZHASADJUSTMENTS integer,
    ZHEIGHT integer,
    ZKIND integer,
    ZKINDSUBTYPE integer,
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
    ZEMBEDDEDTHUMBNAILHEIGHT integer,
    ZORIGINALFILESIZE integer,
    ZORIGINALHEIGHT integer,
    ZORIGINALWIDTH integer,
    ZASSET integer,
    Z22_ASSET integer,
    ZCREATORBUNDLEID varchar,
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
    ZKEYASSET integer,
    ZTRASHEDDATE timestamp,
    ZTITLE varchar,
    ZUUID varchar
);

create table Z_15ASSETS (
    Z_15ALBUMS integer,
    Z_22ASSETS integer,
    primary key (Z_15ALBUMS, Z_22ASSETS)
);
