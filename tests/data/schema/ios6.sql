create table Z_PRIMARYKEY (
    Z_ENT integer primary key,
    Z_NAME varchar,
    Z_SUPER integer,
    Z_MAX integer
);
insert into Z_PRIMARYKEY (Z_ENT, Z_NAME, Z_SUPER, Z_MAX) values
    (4, 'GenericAlbum', 0, 0),
    (5, 'Album', 4, 0),
    (9, 'PhotoStreamAlbum', 5, 0),
    (11, 'GenericAsset', 0, 0),
    (13, 'Asset', 11, 0);

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
    Z11_ASSET integer,
    ZDURATION float,
    ZCREATORBUNDLEID varchar,
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

create table Z_5ASSETS (
    Z_5ALBUMS integer,
    Z_11ASSETS integer,
    primary key (Z_5ALBUMS, Z_11ASSETS)
);
