-- Running numbers, given by the database when the station leaves them NULL or 0.

set term ^ ;

create or alter trigger tipocambio_bi for tipocambio before insert
as
begin
    if (coalesce(new.consec, 0) = 0) then
        new.consec = next value for sq_tipocambio;
end^

create or alter trigger prestamo_exp_bi for prestamo_exp before insert
as
begin
    if (coalesce(new.consec, 0) = 0) then
        new.consec = next value for sq_prestamo_exp;
end^

create or alter trigger estadocuenta_bi for estadocuenta before insert
as
begin
    if (coalesce(new.consec, 0) = 0) then
        new.consec = next value for sq_estadocuenta;
end^

-- Holders are found by beneficiario = '', which NULL would not answer.
create or alter trigger prestaciones_biu for prestaciones before insert or update
as
begin
    new.beneficiario = coalesce(new.beneficiario, '');
end^

set term ; ^

commit;
