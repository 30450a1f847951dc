create temp view ZADDITIONALASSETATTRIBUTES as
select *
from main.ZADDITIONALASSETATTRIBUTES
where likelihood(
    case when ZASSET in (
        select [Z_%1ASSETS]
        from main.Z_%2ASSETS
    ) then 1 end,
    1.0)
