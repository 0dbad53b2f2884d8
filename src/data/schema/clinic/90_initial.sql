-- What a new clinic starts with: one administrator, the sales areas of his campus to choose from,
-- and the rows that the routines refer to by number. Centres, desks and prices come by the set-up
-- screen and the catalogues.

insert into control (llave, folioad, tipo_cam, version, sistema_ver)
values ('1', 1, 0, 1, '1.0.0.0');

-- detallepago.idtipo
insert into tipo_formapago (idtipo, tipopago) values (1, 'EFECTIVO PESOS');
insert into tipo_formapago (idtipo, tipopago) values (2, 'EFECTIVO DOLARES');
insert into tipo_formapago (idtipo, tipopago) values (3, 'CHEQUE');
insert into tipo_formapago (idtipo, tipopago) values (4, 'TARJETA');
insert into tipo_formapago (idtipo, tipopago) values (10, 'PRESTACION');

-- No screen keeps the units that the price list offers.
insert into unidadmedida (unimed, descr) values (1, 'SERVICIO');
insert into unidadmedida (unimed, descr) values (2, 'PIEZA');
insert into unidadmedida (unimed, descr) values (3, 'CUADRANTE');
insert into unidadmedida (unimed, descr) values (4, 'ARCADA');
insert into unidadmedida (unimed, descr) values (5, 'SESION');

-- The plain patient.
insert into prestaciones (prestacion, descripcion, beneficiario) values (1, 'PACIENTE GENERAL', '');

insert into controlusuarios (
    usuario, pass, nombre, nombrecorto, acceso, centro, turno, autoriza, campus, num_caja, origen,
    mpo)
values (
    'admin', 'admin', 'ADMINISTRADOR DEL SISTEMA', 'ADMINISTRADOR', 'AM', '', 'CO', 'admin', '1',
    '0', 'VAN', 1);

insert into usuarios_m (
    origen, centro, usuario, acceso, a3, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11a, b12a, c1,
    c2, c3, d1, d2, e1, e2, e3, e4, e5a, e5b, e5c, e5d, e6, e7, e8, e9, f1, f2, f3, i1, i2, h1a,
    h1b, h2a, h2b, h2c, h2d, h2e, h2f, j3)
values (
    'VAN', '', 'admin', 'AM', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S',
    'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S',
    'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S', 'S');

-- A business installation works with the first ten areas only.
set term ^ ;
create procedure alta_area (tipo_prod integer, descr varchar(80), dirigidoa varchar(2),
                            cuenta smallint, ciudad varchar(3), origen varchar(2))
as
begin
    insert into areaventa (tipo_prod, descr, dirigidoa, generoid, grupoid, cgrubroid, cuentaid,
                           subctaid, nomenclatura, origen, vigente, ciudad)
    values (:tipo_prod, :descr, :dirigidoa, 4, 1, 7, :cuenta, 1, '4.1.7.' || :cuenta || '.1',
            :origen, 'S', :ciudad);
end^
set term ; ^
commit;

execute procedure alta_area(1, 'ADMISION', 'AD', 1, 'VAN', 'VN');
execute procedure alta_area(2, 'APERTURA DE EXPEDIENTE', 'AE', 1, 'VAN', 'VN');
execute procedure alta_area(3, 'INFANTIL', 'AP', 2, 'VAN', 'VN');
execute procedure alta_area(4, 'ADULTOS', 'AP', 2, 'VAN', 'VN');
execute procedure alta_area(5, 'OTROS', 'OT', 5, 'VAN', 'VN');
execute procedure alta_area(6, 'PUBLICO GENERAL', 'PG', 5, 'VAN', 'VN');
execute procedure alta_area(7, 'LABORATORIOS EXTERNOS', 'LE', 4, 'VAN', 'VN');
execute procedure alta_area(8, 'ALUMNOS', 'AL', 5, 'VAN', 'VN');
execute procedure alta_area(9, 'VARIOS', 'VA', 5, 'VAN', 'VN');
execute procedure alta_area(10, 'BIBLIOTECA', 'UE', 5, 'VAN', 'VN');
execute procedure alta_area(11, 'CURSOS Y DIPLOMADOS', 'CD', 5, 'VAN', 'VN');
execute procedure alta_area(12, 'MAESTRIA Y DOCTORADO', 'MD', 5, 'VAN', 'VN');
execute procedure alta_area(13, 'EXAMENES DE ESPECIALIDADES', 'EX', 5, 'VAN', 'VN');
execute procedure alta_area(14, 'ENDODONCIA', 'ES', 3, 'VAN', 'VN');
execute procedure alta_area(15, 'PERIODONCIA', 'ES', 3, 'VAN', 'VN');
execute procedure alta_area(16, 'ODONTOPEDIATRIA', 'ES', 3, 'VAN', 'VN');
execute procedure alta_area(17, 'PROSTODONCIA', 'ES', 3, 'VAN', 'VN');
execute procedure alta_area(18, 'CIRUGIA BUCAL Y MAXILOFACIAL', 'ES', 3, 'VAN', 'VN');
execute procedure alta_area(19, 'RADIOLOGIA', 'AP', 2, 'VAN', 'VN');
execute procedure alta_area(20, 'SERVICIOS DE DIPLOMADOS', 'AP', 2, 'VAN', 'VN');
execute procedure alta_area(21, 'PROG. LABIO PALADAR Y HENDIDO', 'PR', 3, 'VAN', 'VN');
execute procedure alta_area(22, 'ABONO A CUENTA', 'AB', 5, 'VAN', 'VN');
execute procedure alta_area(96, 'ORTODONCIA', 'ES', 3, 'VAN', 'VN');
commit;

drop procedure alta_area;
commit;
