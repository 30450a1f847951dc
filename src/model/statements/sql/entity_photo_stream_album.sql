select
    Z_ENT
from Z_PRIMARYKEY
where Z_NAME='PhotoStreamAlbum'
