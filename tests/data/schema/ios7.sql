create table Z_PRIMARYKEY (
    Z_ENT integer primary key,
    Z_NAME varchar,
    Z_SUPER integer,
    Z_MAX integer
);
insert into Z_PRIMARYKEY (Z_ENT, Z_NAME, Z_SUPER, Z_MAX) values
    (5, 'GenericAlbum', 0, 0),
    (6, 'Album', 5, 0),
    (10, 'PhotoStreamAlbum', 6, 0),
    (12, 'GenericAsset', 0, 0),
    (15, 'Asset', 12, 0);

create table ZGENERICASSET (
    Z_PK integer primary key,
    Z_ENT integer,
    Z_OPT integer,
    ZHEIGHT integer,
    ZKIND integer,
    ZSAVEDASSETTYPE integer,
    ZTHUMBNAILINDEX integer,
    ZWIDTH integer,
    ZDATECREATED timestamp,
    ZMODIFICATIONDATE timestamp,
    ZSORTTOKEN float,
    ZDIRECTORY varchar,
    ZFILENAME varchar,
    ZUNIFORMTYPEIDENTIFIER varchar,
    ZUUID blob
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
    Z12_ASSET integer,
    ZDURATION float,
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
    ZKEYASSET integer,
    ZTITLE varchar,
    ZUUID blob
);

create table Z_6ASSETS (
    Z_6ALBUMS integer,
    Z_12ASSETS integer,
    primary key (Z_6ALBUMS, Z_12ASSETS)
);
