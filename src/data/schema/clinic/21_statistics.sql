-- How selective the indices are. The engine works that out when an index is made and never again by
-- itself; made on empty tables, all of them would look useless for ever, and joins over twenty years
-- of notes would begin by reading a table whole. So they are measured over made-up rows, which are
-- removed again. A student, a patient, a dossier and a day have few rows each among twenty years of
-- them: in so small a sample each has one, or their indices would seem to give thousands.
-- scripts/maintain sets them from the real rows once there are enough.

set term ^ ;

execute block
as
    declare i integer = 0;
    declare caja integer;
    declare nota integer;
    declare dia date;
    declare exped varchar(10);
    declare recibo varchar(20);
    declare patient varchar(40);
    declare center varchar(4);
begin
    while (i < 500) do
    begin
        caja = mod(i, 50) + 1;
        nota = i / 50 + 1;
        dia = dateadd(i day to date '2000-01-01');
        exped = i || '/00';
        recibo = caja || '-' || nota;
        patient = 'P' || i;
        center = lpad(mod(i, 5) + 1, 2, '0');

        insert into registrovtas (num_caja, nota_vta, fecha, recibo)
        values (:caja, :nota, :dia, :recibo);
        insert into pagos_odontologia (num_caja, nota_vta, paciente, matricula)
        values (:caja, :nota, :patient, :i);
        insert into formapago (num_caja, nota_vta) values (:caja, :nota);
        insert into vtascontado (num_caja, nota_vta) values (:caja, :nota);
        insert into metodopagonota (num_caja, nota_vta) values (:caja, :nota);
        insert into saldopaciente (num_caja, nota_vta) values (:caja, :nota);
        insert into detallepago (num_caja, nota_vta, idtipo) values (:caja, :nota, mod(:i, 4) + 1);
        insert into detallevtas (num_caja, nota_vta, codigo, tipo_prod, cve_prod)
        values (:caja, :nota, 1000 + mod(:i, 300), 1, mod(:i, 300));
        insert into detallevtas (num_caja, nota_vta, codigo, tipo_prod, cve_prod)
        values (:caja, :nota, 2000 + mod(:i, 200), 2, mod(:i, 200));
        insert into historicoodontologia (expediente, codigo, num_caja, nota_vta)
        values (:exped, 1000 + mod(:i, 300), :caja, :nota);

        insert into admision (folio, fecha, num_caja, nota_vta, centro)
        values (:i, :dia, :caja, :nota, :center);
        insert into datosgenerales (folio, paterno, materno, paciente, nombre)
        values (:i, 'A' || mod(:i, 80), 'B' || mod(:i, 90), :patient, :patient);
        insert into antecedentes (folio) values (:i);
        insert into admurgente (folio) values (:i);
        insert into plantratamiento (folio, prioridad) values (:i, 1);
        insert into expedientes (campus, expediente, folio, centro, fecha_ap, num_caja, nota_vta)
        values (iif(mod(:i, 2) = 0, 'AAA', 'BBB'), :i || '/00', :i, :center, :dia, :caja, :nota);
        insert into prestamo_exp (consec, status, centro, matricula, expediente)
        values (:i + 1, iif(mod(:i, 20) = 0, 'PR', 'RG'), :center, :i, :exped);
        insert into anticipos (campus, expediente, recibo_anticipo)
        values (iif(mod(:i, 2) = 0, 'AAA', 'BBB'), :exped, :recibo);
        insert into abonos (campus, expediente, recibo_anticipo, recibopago)
        values ('AAA', :exped, :recibo, :recibo);
        insert into estadocuenta (consec, campus, expediente, recibo, recibopago)
        values (:i + 1, 'AAA', :exped, :recibo, :recibo);
        i = i + 1;
    end
end^

commit^

execute block
as
    declare indice varchar(63);
begin
    for select trim(x.rdb$index_name)
          from rdb$indices x
         where x.rdb$relation_name in (
                   'REGISTROVTAS', 'PAGOS_ODONTOLOGIA', 'FORMAPAGO', 'VTASCONTADO',
                   'METODOPAGONOTA', 'SALDOPACIENTE', 'DETALLEPAGO', 'DETALLEVTAS',
                   'HISTORICOODONTOLOGIA', 'ADMISION', 'DATOSGENERALES', 'ANTECEDENTES',
                   'ADMURGENTE', 'PLANTRATAMIENTO', 'EXPEDIENTES', 'PRESTAMO_EXP', 'ANTICIPOS',
                   'ABONOS', 'ESTADOCUENTA')
          into :indice
    do
        execute statement 'set statistics index ' || indice;
end^

commit^

execute block
as
begin
    delete from registrovtas;
    delete from pagos_odontologia;
    delete from formapago;
    delete from vtascontado;
    delete from metodopagonota;
    delete from saldopaciente;
    delete from detallepago;
    delete from detallevtas;
    delete from historicoodontologia;
    delete from admision;
    delete from datosgenerales;
    delete from antecedentes;
    delete from admurgente;
    delete from plantratamiento;
    delete from expedientes;
    delete from prestamo_exp;
    delete from anticipos;
    delete from abonos;
    delete from estadocuenta;
end^

set term ; ^

commit;
