-- What happened to the sample library in three weeks.
insert into ZASSET (Z_PK, Z_ENT, ZFILENAME, ZDIRECTORY, ZUUID, ZUNIFORMTYPEIDENTIFIER, ZWIDTH, ZHEIGHT,
                    ZDATECREATED, ZMODIFICATIONDATE, ZADDEDDATE, ZSAVEDASSETTYPE, ZTRASHEDSTATE,
                    ZTHUMBNAILINDEX, ZDURATION)
    select 23, 3, 'IMG_0019.HEIC', 'DCIM/100APPLE', '5A3D1F00-0000-4000-8000-000000000023',
           'public.heic', 4032, 3024, taken, taken, taken, 3, 0, 23, 0
    from (select strftime('%s', '2023-06-08 17:20') - 978307200 as taken);
insert into ZADDITIONALASSETATTRIBUTES (Z_PK, ZASSET, ZORIGINALFILENAME, ZORIGINALFILESIZE,
                                        ZEMBEDDEDTHUMBNAILHEIGHT)
    values (23, 23, 'IMG_0019.HEIC', 1712345, 120);
insert into Z_27ASSETS (Z_27ALBUMS, Z_3ASSETS) values (1, 23);  -- into the weekend at the lake
delete from Z_27ASSETS where Z_27ALBUMS = 1 and Z_3ASSETS = 3;  -- and out of it
update ZASSET set ZTRASHEDSTATE = 1, ZTRASHEDDATE = strftime('%s', '2023-06-01 08:00') - 978307200
    where Z_PK = 11;
update ZASSET set ZTRASHEDSTATE = 0, ZTRASHEDDATE = null where Z_PK = 17;
update ZASSET set ZHASADJUSTMENTS = 1,
                  ZMODIFICATIONDATE = strftime('%s', '2023-06-02 19:30') - 978307200
    where Z_PK = 13;
delete from ZASSET where Z_PK = 12;
delete from ZADDITIONALASSETATTRIBUTES where ZASSET = 12;
