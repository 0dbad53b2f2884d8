set term ^ ;

-- The set-up of a clinic adds its cashiers without a number.
create or alter trigger cg_usuario_bi for cg_usuario before insert
as
begin
    if (coalesce(new.usuarioid, 0) = 0) then
        new.usuarioid = next value for sq_cg_usuario;
end^

set term ; ^

commit;
