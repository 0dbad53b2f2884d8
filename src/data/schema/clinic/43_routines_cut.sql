-- The day of a cash desk.

set term ^ ;

-- Figures of a desk and day: one row, zeros where there is nothing. Cancelled notes count in total
-- and cancelados only. dolares in dollars; voucher counts the notes with a card payment.
create or alter procedure kdest_caja (p_caja integer, p_fecha date)
returns (
    total integer,
    cancelados integer,
    pesos double precision,
    dolares double precision,
    tarjeta double precision,
    prestacion double precision,
    voucher integer)
as
begin
    select count(*),
           count(iif(r.status = 'CA', 1, null)),
           coalesce(sum(iif(r.status = 'CA', 0, f.pesos)), 0),
           coalesce(sum(iif(r.status = 'CA', 0, f.dolares)), 0),
           coalesce(sum(iif(r.status = 'CA', 0, f.credito)), 0),
           coalesce(sum(iif(r.status = 'CA', 0, f.prestacion)), 0),
           count(iif(r.status <> 'CA' and f.credito > 0, 1, null))
      from registrovtas r
      left join formapago f on f.num_caja = r.num_caja and f.nota_vta = r.nota_vta
     where r.num_caja = :p_caja
       and r.fecha = :p_fecha
      into :total, :cancelados, :pesos, :dolares, :tarjeta, :prestacion, :voucher;
    suspend;
end^

-- Fills cortebancario for a cashier, desk and day, in place of what an earlier run left there. The
-- live notes give one row per account, source, fund and way of payment: pesos, cheques and cards to
-- the peso account of the note, dollars (as dollars) to its dollar account. Source and fund are
-- those of the note's lines.
create or alter procedure kdcompletacortebancario (usr varchar(8), caja integer, fecha date)
as
begin
    delete from cortebancario cb
     where cb.num_caja = :caja
       and cb.fechacorte = :fecha
       and cb.usuario = :usr;

    insert into cortebancario (
        num_caja, fechacorte, usuario, bancoid, subsubctaid, nomenclatura, nom_banco, ftefto, fondo,
        concepto, importe, prog)
    with notas as (
        select r.num_caja, r.nota_vta, coalesce(min(d.ftefinid), 0) as ftefto,
               coalesce(min(d.fondo), '') as fondo
          from registrovtas r
          left join detallevtas d on d.num_caja = r.num_caja and d.nota_vta = r.nota_vta
         where r.num_caja = :caja
           and r.fecha = :fecha
           and r.capto = :usr
           and r.status <> 'CA'
         group by r.num_caja, r.nota_vta),
    sumas as (
        select f.bancomn, f.bancodll, n.ftefto, n.fondo, sum(maxvalue(f.pesos, 0)) as pesos,
               sum(maxvalue(f.cheque, 0)) as cheque, sum(maxvalue(f.credito, 0)) as credito,
               sum(maxvalue(f.dolares, 0)) as dolares
          from notas n
          join formapago f on f.num_caja = n.num_caja and f.nota_vta = n.nota_vta
         group by f.bancomn, f.bancodll, n.ftefto, n.fondo),
    formas as (
        select 1 as orden, cast('EFECTIVO' as varchar(50)) as concepto from rdb$database
        union all
        select 2, 'CHEQUE' from rdb$database
        union all
        select 3, 'TARJETA' from rdb$database
        union all
        select 4, 'DOLARES' from rdb$database),
    -- The outer join keeps the sums in front: every note is read once, not once for each way.
    pagos as (
        select iif(w.orden = 4, s.bancodll, s.bancomn) as bancoid, s.ftefto, s.fondo, w.orden,
               w.concepto,
               decode(w.orden, 1, s.pesos, 2, s.cheque, 3, s.credito, s.dolares) as importe
          from sumas s
          left join formas w on w.orden > 0)
    select :caja, :fecha, :usr, coalesce(p.bancoid, 0), coalesce(b.subsubctaid, 0),
           b.nomenclatura, b.descripcion, p.ftefto,
           iif(p.fondo similar to '[0-9]+', p.fondo, 0), p.concepto, sum(p.importe), c.prog_pol
      from pagos p
      left join cg_banco b on b.bancoid = p.bancoid
      left join datoscaja c on c.num_caja = :caja
     where p.importe > 0
     group by p.bancoid, b.subsubctaid, b.nomenclatura, b.descripcion, p.ftefto, p.fondo, p.orden,
              p.concepto, c.prog_pol
     order by p.bancoid, p.ftefto, p.fondo, p.orden;

    -- Dollars are no pesos: where both go to one account, or to none, they get a group of their own
    -- under the number's negative.
    update cortebancario cb
       set cb.bancoid = -maxvalue(cb.bancoid, 1)
     where cb.num_caja = :caja
       and cb.fechacorte = :fecha
       and cb.usuario = :usr
       and cb.concepto = 'DOLARES'
       and exists (select 1
                     from cortebancario o
                    where o.num_caja = cb.num_caja
                      and o.fechacorte = cb.fechacorte
                      and o.usuario = cb.usuario
                      and o.bancoid = cb.bancoid
                      and o.concepto <> cb.concepto);
end^

set term ; ^

commit;
