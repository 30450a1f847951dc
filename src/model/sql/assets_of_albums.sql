create temp view ZADDITIONALASSETATTRIBUTES as
select *
from main.ZADDITIONALASSETATTRIBUTES
where ZASSET in (
    select [Z_%1ASSETS]
    from main.Z_%2ASSETS
)
