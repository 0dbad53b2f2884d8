set term ^ ;

-- Takes a note over from the clinic. A note that is handed over again keeps one row.
create or alter procedure inserta_vw_recibopago (v_caja integer, v_nota integer)
as
begin
    update or insert into recibopago (num_caja, nota_vta, momento)
    values (:v_caja, :v_nota, ahora())
    matching (num_caja, nota_vta);
end^

-- Gives a note back: afterwards finance knows nothing of it.
create or alter procedure borrarpago (num_caja integer, nota_vta integer)
as
begin
    delete from recibopago r
     where r.num_caja = :num_caja
       and r.nota_vta = :nota_vta;
end^

set term ; ^

commit;
