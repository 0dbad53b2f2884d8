-- Indices beyond the keys, for twenty years of notes. Each serves the queries named.

-- Next note of a desk (max) and the list of its notes, newest first.
create descending index ix_registrovtas_ultima on registrovtas (num_caja, nota_vta);
-- The cash cut. By date alone: with the desk in front the list of notes would be sorted.
create index ix_registrovtas_fecha on registrovtas (fecha);
create index ix_registrovtas_recibo on registrovtas (recibo);

-- Notes of a patient, in the order of the list; notes of a student.
create index ix_pagos_paciente on pagos_odontologia (paciente, num_caja, nota_vta);
create index ix_pagos_matricula on pagos_odontologia (matricula);
create index ix_detallepago_tipo on detallepago (num_caja, idtipo);

create index ix_admision_fecha on admision (fecha);
-- Lists of a centre, newest folio first, stop after their first page.
create descending index ix_admision_centro on admision (centro, folio);
create index ix_admision_nota on admision (num_caja, nota_vta);
create index ix_datosgenerales_nombre on datosgenerales (paterno, materno, paciente);

create index ix_expedientes_numero on expedientes (expediente);
create index ix_expedientes_centro on expedientes (centro, expediente);
-- Dossiers of a centre or campus, newest first; labels of a day.
create descending index ix_expedientes_fecha on expedientes (centro, fecha_ap);
create descending index ix_expedientes_campus on expedientes (campus, fecha_ap);
create index ix_expedientes_folio on expedientes (folio);
create index ix_expedientes_nota on expedientes (num_caja, nota_vta);

-- Statement of account, cancellation and cut.
create index ix_estadocuenta_expediente on estadocuenta (expediente);
create index ix_estadocuenta_pago on estadocuenta (recibopago);
create index ix_anticipos_recibo on anticipos (recibo_anticipo);
create index ix_abonos_pago on abonos (recibopago);

create index ix_prestamo_status on prestamo_exp (status, centro);
create index ix_prestamo_matricula on prestamo_exp (matricula);
create index ix_prestamo_expediente on prestamo_exp (expediente);

create index ix_historico_expediente on historicoodontologia (expediente, codigo);
create index ix_historico_nota on historicoodontologia (num_caja, nota_vta);

-- The drop-down of a note's lines.
create index ix_listaprecios_descr on listaprecios (tipo_prod, descr);
-- Benefit lists name no centre; this gives them the key's order.
create index ix_prestacionxserv_area on prestacionxserv (tipo_prod, prestacion, centro);
create descending index ix_tipocambio_ultimo on tipocambio (consec);
create index ix_areaventa_descr on areaventa (descr);
create index ix_ctroatencion_ciudad on ctroatencion (ciudad);
create index ix_controlusuarios_caja on controlusuarios (num_caja, turno);

-- Work tables of the cut.
create index ix_cortedetallado on cortedetallado (num_caja, nota_vta);
create index ix_totales on totales (num_caja);
create index ix_cortebancario on cortebancario (num_caja, fechacorte);

commit;
