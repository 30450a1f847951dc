select
    Z_SUPER,
    Z_ENT
from Z_PRIMARYKEY
where Z_NAME='Asset'
