-- Removal of a half-written note. The station calls these one after the other and moves the counter
-- last, so each can run again on what an interrupted repair left. Note 0 stands for admissions and
-- balances that no note paid for: nothing is ever removed for it.

set term ^ ;

-- Gives back a desk that the caller's attachment holds.
create or alter procedure kdliberacaja (num_caja integer)
as
begin
    update uso_caja u
       set u.conexion = null
     where u.num_caja = :num_caja
       and u.conexion = current_connection;
end^

-- Holds a desk for its repair, if it still is as the caller saw it: the counter unmoved, no note
-- above the last one. Only a repair, told by the counter, may have taken that last one away. Who
-- holds the desk finds its row in uso_caja.
create or alter procedure kdreservacaja (num_caja integer, ultima integer, siguiente integer)
as
    declare tomada smallint;
    declare maxima integer;
    declare contador integer;
begin
    execute procedure kdtomacaja (num_caja, null) returning_values tomada;
    if (tomada = 1) then
    begin
        select coalesce(max(r.nota_vta), 0)
          from registrovtas r
         where r.num_caja = :num_caja
          into :maxima;
        select d.nota_vta from datoscaja d where d.num_caja = :num_caja into :contador;
        if (contador is distinct from siguiente
            or maxima > ultima
            or (maxima < ultima and siguiente <> ultima)) then
            execute procedure kdliberacaja (num_caja);
    end
end^

-- The lines of a note and their place in the dossier's history.
create or alter procedure kdborrardetallevtas (num_caja integer, nota_vta integer)
as
begin
    if (nota_vta > 0) then
    begin
        delete from detallevtas d
         where d.num_caja = :num_caja
           and d.nota_vta = :nota_vta;

        delete from historicoodontologia h
         where h.num_caja = :num_caja
           and h.nota_vta = :nota_vta;
    end
end^

-- The admission that a note made in a campus, with all that hangs on its folio, unless a dossier
-- was opened on it. The folio is not given back.
create or alter procedure kdborraradmision (num_caja integer, nota_vta integer, ciudad varchar(3))
as
    declare folio integer;
begin
    if (nota_vta > 0) then
        for select a.folio
              from admision a
              join ctroatencion c on c.centro = a.centro
             where a.num_caja = :num_caja
               and a.nota_vta = :nota_vta
               and c.ciudad = :ciudad
               and not exists (select 1 from expedientes e where e.folio = a.folio)
              into :folio
        do
        begin
            delete from plantratamiento p where p.folio = :folio;
            delete from admurgente u where u.folio = :folio;
            delete from antecedentes h where h.folio = :folio;
            delete from datosgenerales g where g.folio = :folio;
            delete from admision a where a.folio = :folio;
        end
end^

-- The dossier that a note opened in a campus, with its loans. The number is not given back.
create or alter procedure kdborrarexpediente (num_caja integer, nota_vta integer, ciudad varchar(3))
as
    declare expediente varchar(10);
begin
    if (nota_vta > 0) then
        for select e.expediente
              from expedientes e
             where e.num_caja = :num_caja
               and e.nota_vta = :nota_vta
               and e.campus = :ciudad
              into :expediente
        do
        begin
            delete from prestamo_exp p
             where p.expediente = :expediente
               and p.campus = :ciudad;

            delete from expedientes e
             where e.expediente = :expediente
               and e.campus = :ciudad;
        end
end^

-- The rest of a note: what it paid on accounts goes back to their balance, the account that it
-- opened disappears. Its head goes last, since the repair looks for it to know that work remains.
create or alter procedure sp550 (num_caja integer, nota_vta integer)
as
    declare recibo varchar(20);
    declare campus varchar(3);
    declare expediente varchar(10);
    declare recibo_anticipo varchar(20);
    declare importe double precision;
begin
    if (nota_vta > 0) then
    begin
        recibo = num_caja || '-' || nota_vta;

        for select b.campus, b.expediente, b.recibo_anticipo, b.importe
              from abonos b
             where b.recibopago = :recibo
              into :campus, :expediente, :recibo_anticipo, :importe
        do
            update anticipos a
               set a.saldo = a.saldo + :importe
             where a.campus = :campus
               and a.expediente = :expediente
               and a.recibo_anticipo = :recibo_anticipo;

        delete from abonos b where b.recibopago = :recibo;
        delete from estadocuenta e where e.recibopago = :recibo;
        delete from anticipos a where a.recibo_anticipo = :recibo;

        delete from detallepago d where d.num_caja = :num_caja and d.nota_vta = :nota_vta;
        delete from metodopagonota m where m.num_caja = :num_caja and m.nota_vta = :nota_vta;
        delete from vtascontado v where v.num_caja = :num_caja and v.nota_vta = :nota_vta;
        delete from formapago f where f.num_caja = :num_caja and f.nota_vta = :nota_vta;
        delete from pagos_odontologia p where p.num_caja = :num_caja and p.nota_vta = :nota_vta;
        delete from registrovtas r where r.num_caja = :num_caja and r.nota_vta = :nota_vta;
    end
end^

set term ; ^

commit;
