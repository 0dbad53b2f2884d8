-- What a payment note writes. The station calls these in a settled order, each one committed by
-- itself; none of them moves the note counter of the desk, which the station does last.

create or alter exception ex_concepto 'El concepto no existe en la lista de precios.';
create or alter exception ex_caja_en_uso 'Otra estación está usando esta caja.';

set term ^ ;

-- Takes a desk for the caller's attachment, for a note or, with NULL, for a repair; 0 where another
-- station holds it. Who takes it waits for who is taking it, and only one of them gets it.
create or alter procedure kdtomacaja (num_caja integer, nota_vta integer)
returns (tomada smallint)
as
begin
    tomada = 1;
    -- The attachments come last: to list them costs more than all else here.
    update uso_caja u
       set u.conexion = current_connection,
           u.nota_vta = :nota_vta,
           u.momento = current_timestamp
     where u.num_caja = :num_caja
       and (u.conexion is null
            or u.conexion = current_connection
            or u.nota_vta < (select d.nota_vta from datoscaja d where d.num_caja = u.num_caja)
            or u.momento < dateadd(-5 minute to current_timestamp)
            or not exists (select 1
                             from mon$attachments m
                            where m.mon$attachment_id = u.conexion
                              and m.mon$timestamp <= u.momento));
    if (row_count = 0) then
        insert into uso_caja (num_caja, conexion, nota_vta, momento)
        values (:num_caja, current_connection, :nota_vta, current_timestamp);

    when gdscode deadlock, gdscode unique_key_violation do
        tomada = 0;
end^

-- Head of a note with its payment. A note that exists already fails on its key: two patients must
-- not end up in one note. From here on until the counter moves the desk is the caller's.
create or alter procedure kdregistra_pago_odo_p (
    p_numcaja integer,
    p_notavta integer,
    p_mpio varchar(1),
    p_usuario varchar(8),
    p_importe double precision,
    p_tiposerv varchar(25),
    p_tipocte integer,
    p_paciente varchar(100),
    p_matricula integer,
    p_alumno varchar(100),
    p_tipocambio double precision,
    p_pesos double precision,
    p_dolares double precision,
    p_cheque double precision,
    p_credito double precision,
    p_cambio double precision,
    p_imprestacion double precision,
    p_numcheque varchar(8),
    p_numempl integer,
    p_expediente varchar(10),
    p_turno varchar(2),
    p_centro varchar(4),
    p_prestacion integer,
    p_pordscto integer,
    p_impdscto double precision,
    p_area varchar(2),
    p_paterno varchar(40),
    p_materno varchar(40),
    p_nombre varchar(100))
as
    declare campus varchar(1);
    declare sistemaid smallint;
    declare paqueteid varchar(20);
    declare bancomn integer;
    declare bancodll integer;
    declare empleado varchar(100);
    declare dolares_en_pesos double precision;
    declare tomada smallint;
begin
    execute procedure kdtomacaja (p_numcaja, p_notavta) returning_values tomada;
    if (tomada = 0) then
        exception ex_caja_en_uso;

    select d.campus, d.sistemaid, d.paqueteid, d.bancomn, d.bancodll
      from datoscaja d
     where d.num_caja = :p_numcaja
      into :campus, :sistemaid, :paqueteid, :bancomn, :bancodll;

    if (p_numempl > 0) then
        select e.nombre from empleados e where e.num_empl = :p_numempl into :empleado;

    dolares_en_pesos = round(p_dolares * p_tipocambio, 4);

    insert into registrovtas (
        num_caja, nota_vta, mpio, fecha, fecha_hora, tipo_vta, status, capto, importe_tot,
        tipocambio, tipo_serv, matricula, alumno, recibo, pk_tipo_cliente, polizaid, campusid,
        sistemaid, paqueteid)
    values (
        :p_numcaja, :p_notavta, :p_mpio, hoy(), ahora(), 'CONTADO', 'GE', :p_usuario, :p_importe,
        :p_tipocambio, :p_tiposerv, coalesce(:p_matricula, 0), :p_alumno,
        :p_numcaja || '-' || :p_notavta, :p_tipocte, 0,
        iif(:campus between '0' and '9', :campus, null), :sistemaid, :paqueteid);

    insert into pagos_odontologia (
        num_caja, nota_vta, expediente, tipo_serv, turno, centro, prestacion, porc_descto,
        imp_descto, matricula, alumno, num_empl, empleado, area, paciente, paterno, materno,
        nombre)
    values (
        :p_numcaja, :p_notavta, :p_expediente, :p_tiposerv, :p_turno, :p_centro, :p_prestacion,
        :p_pordscto, :p_impdscto, coalesce(:p_matricula, 0), :p_alumno, :p_numempl, :empleado,
        :p_area, trim(:p_paciente), :p_paterno, :p_materno, :p_nombre);

    -- complementaria is what the dollars add when they are counted as pesos.
    insert into formapago (
        num_caja, nota_vta, importe_tot, dolares, pesos, cambio, prestacion, anticipo, credito,
        cheque, chequedll, numcheque, bancomn, bancodll, complementaria, beca)
    values (
        :p_numcaja, :p_notavta, :p_importe, :p_dolares, :p_pesos, :p_cambio, :p_imprestacion, 0,
        :p_credito, :p_cheque, 0, :p_numcheque, :bancomn, :bancodll,
        round(:dolares_en_pesos - :p_dolares, 4), :p_imprestacion);

    insert into vtascontado (num_caja, nota_vta, tipo_cliente, nombre, imp_total)
    values (:p_numcaja, :p_notavta, :p_tipocte, :p_paciente, :p_importe);

    -- Forms of payment by their number in tipo_formapago.
    insert into detallepago (num_caja, nota_vta, idtipo, importe)
    select :p_numcaja, :p_notavta, f.idtipo, f.importe
      from (select 1 as idtipo, cast(:p_pesos as double precision) as importe from rdb$database
            union all
            select 2, cast(:dolares_en_pesos as double precision) from rdb$database
            union all
            select 3, cast(:p_cheque as double precision) from rdb$database
            union all
            select 4, cast(:p_credito as double precision) from rdb$database
            union all
            select 10, cast(:p_imprestacion as double precision) from rdb$database) f
     where f.importe > 0;
end^

-- One line of a note. Area, key and tax data come from the price list; an unknown code raises.
-- p_nombre, p_orig and p_areactr are accepted and have no column.
create or alter procedure kdregistra_spinsdetalle_p (
    p_caja integer,
    p_notavta integer,
    p_codigo integer,
    p_cant double precision,
    p_precio double precision,
    p_porcdescto integer,
    p_nombre varchar(100),
    p_prog integer,
    p_sscta integer,
    p_desadic varchar(1000),
    p_fondo varchar(2),
    p_orig varchar(2),
    p_safolio varchar(12),
    p_ftefto integer,
    p_areactr varchar(2))
as
begin
    insert into detallevtas (
        num_caja, nota_vta, codigo, tipo_prod, cve_prod, cant, precio, porc_desc, perc_dcto, prog,
        des_adic, fondo, foliosa, subsubcta, ftefinid, tipodeiva, porcentajeiva, importeiva,
        clasificacioniva, claveprodserv)
    select :p_caja, :p_notavta, l.codigo, l.tipo_prod, l.cve_prod, :p_cant, :p_precio,
           :p_porcdescto, :p_porcdescto, :p_prog, :p_desadic, :p_fondo, :p_safolio, :p_sscta,
           :p_ftefto, l.tipodeiva, l.porcentajeiva, 0, l.clasificacioniva, l.claveprodserv
      from listaprecios l
     where l.codigo = :p_codigo;

    if (row_count = 0) then
        exception ex_concepto
            'El concepto ' || coalesce(p_codigo, 'sin clave')
            || ' no existe en la lista de precios.';
end^

-- A treatment charged to a dossier.
create or alter procedure kdregistra_historico_odo_p (
    p_expediente varchar(10),
    p_codigo integer,
    p_tipo_prod integer,
    p_cve_prod integer,
    p_caja integer,
    p_notavta integer,
    p_fecha date,
    p_descr varchar(255),
    p_cant double precision,
    p_precio double precision,
    p_matricula integer,
    p_origen varchar(2),
    p_areactr varchar(2))
as
begin
    insert into historicoodontologia (
        expediente, codigo, tipo_prod, cve_prod, num_caja, nota_vta, fecha, descr, cant, precio,
        matricula, origen, areactr)
    values (
        :p_expediente, :p_codigo, :p_tipo_prod, :p_cve_prod, :p_caja, :p_notavta, :p_fecha,
        :p_descr, :p_cant, :p_precio, :p_matricula, :p_origen, :p_areactr);
end^

-- The fiscal payment method of a note; a second call replaces the first.
create or alter procedure kdregistra_metodopago_p (
    caja integer,
    nota integer,
    cve varchar(2),
    importe double precision,
    cta varchar(20),
    rfcbanco varchar(15),
    banco varchar(60),
    operacion varchar(40),
    rfcdestino varchar(15),
    ctadestino varchar(20),
    moneda varchar(3),
    tipocambio double precision)
as
begin
    update or insert into metodopagonota (
        num_caja, nota_vta, cve, importe, cta, rfcbanco, banco, operacion, rfcdestino, ctadestino,
        moneda, tipocambio)
    values (
        :caja, :nota, :cve, :importe, :cta, :rfcbanco, :banco, :operacion, :rfcdestino,
        :ctadestino, :moneda, :tipocambio)
    matching (num_caja, nota_vta);
end^

-- Tax of a note's lines. Prices hold the tax, so it is taken out of what the line charges after its
-- benefit; no total changes.
create or alter procedure kdregistraiva (caja integer, nota integer)
as
begin
    update detallevtas d
       set d.importeiva = round(d.cant * d.precio * (1 - coalesce(d.porc_desc, 0) / 100e0)
                                * coalesce(d.porcentajeiva, 0)
                                / (100e0 + coalesce(d.porcentajeiva, 0)), 4),
           d.tipofactoriva = trim(iif(coalesce(d.porcentajeiva, 0) > 0, 'Tasa', 'Exento'))
     where d.num_caja = :caja
       and d.nota_vta = :nota;
end^

set term ; ^

commit;
