-- Two patients of the former system: one owes money, one was imported.

insert into admision (folio) values (501);
insert into admision (folio) values (502);
insert into datosgenerales (folio, paterno, materno, paciente, edad, sexo, tipopaciente, domicilio,
                            colonia, ciudad, cod_postal, fecha_nac)
values (501, 'BOJORQUEZ', 'LEON', 'AMALIA', 44, 'F', 'A', 'CALLE NOVENA 18', 'CENTRO',
        'VALLE NORTE', 21100, date '1970-05-02');
insert into datosgenerales (folio, paterno, materno, paciente, edad, sexo, tipopaciente, domicilio,
                            colonia, ciudad, cod_postal, fecha_nac)
values (502, 'CHAVEZ', 'ROJO', 'EDUARDO', 30, 'M', 'A', 'AV. REFORMA 501', 'NUEVA', 'VALLE NORTE',
        21120, date '1985-01-30');
insert into expedientes (folio, expediente, centro, status) values (501, '1204/14', '01', 'PD');
insert into expedientes (folio, expediente, centro, status) values (502, '1377/15', '01', 'IM');
insert into antecedentes (folio, heredo_fam, alergias) values (501, 'S.D.P.', 'N');
insert into antecedentes (folio, heredo_fam, alergias) values (502, 'S.D.P.', 'N');
insert into tiposervicio values ('AP', 'SERVICIOS DE CLINICA');
insert into clasifservicios values ('AP', 'PROT', 'PROTESIS', 'AP', 'N', 15, 100);
insert into listaprecios (tipo, servicio, cve_serv, laboratorio, descr)
values ('AP', 'PROT', '0011', '', 'PROTESIS PARCIAL REMOVIBLE');
insert into registrovtas (nota_vta, fecha, status, centro, prestacion, tipo, area, servicio, prog,
                          empleado, nombre, paterno, materno, paciente, tipopago, anticipo)
values ('A0001532', date '2014-09-10', 'GE', '01', '1', 'AP', 'A1', 'PROT', '12510', 0, '',
        'BOJORQUEZ', 'LEON', 'AMALIA', 'ANTICIPO', 600);
insert into detallevtas (nota_vta, tipo, servicio, cve_serv, laboratorio)
values ('A0001532', 'AP', 'PROT', '0011', '');
insert into anticipos (nota_vta, expediente, paterno, materno, paciente, importe_tot, saldo)
values ('A0001532', '1204/14', 'BOJORQUEZ', 'LEON', 'AMALIA', 1500, 900);
insert into estadocuenta (nota_vta, expediente, matricula, tipo_mov, fecha_mov, concepto, importe,
                          saldo, consec, saldo_ant, recibopago)
values ('A0001532', '1204/14', 0, '1', date '2014-09-10', 'PAGO DE ANTICIPO PROTESIS PARCIAL', 1500,
        900, 1, 0, 'A0001532');

commit;
