-- The example school: two campuses with three centres, their areas, desks and benefits.

-- Campus Costa Sur has areas of its own; Valle Norte works with those of a new clinic.
set term ^ ;
create procedure alta_area (tipo_prod integer, descr varchar(80), dirigidoa varchar(2),
                            cuenta smallint)
as
begin
    insert into areaventa (tipo_prod, descr, dirigidoa, generoid, grupoid, cgrubroid, cuentaid,
                           subctaid, nomenclatura, origen, vigente, ciudad)
    values (:tipo_prod, :descr, :dirigidoa, 4, 1, 7, :cuenta, 1, '4.1.7.' || :cuenta || '.1', 'CS',
            'S', 'COS');
end^
set term ; ^
commit;

execute procedure alta_area(51, 'ADMISION', 'AD', 1);
execute procedure alta_area(52, 'APERTURA DE EXPEDIENTE', 'AE', 1);
execute procedure alta_area(53, 'INFANTIL', 'AP', 2);
execute procedure alta_area(54, 'ADULTOS', 'AP', 2);
execute procedure alta_area(55, 'OTROS', 'OT', 5);
execute procedure alta_area(56, 'PUBLICO GENERAL', 'PG', 5);
execute procedure alta_area(58, 'ALUMNOS', 'AL', 5);
commit;
drop procedure alta_area;
commit;

insert into ctroatencion (centro, descr, domicilio, colonia, telefono1, responsable, prog,
                          descripcion, correoto, ciudad, cp)
values ('01', 'CLINICA DE LICENCIATURA VALLE NORTE', 'AV. DEL PUERTO 1200', 'CENTRO',
        '(686)555-0142', 'DRA. ELENA RUIZ MORAN', '12510', 'UNIVERSIDAD DEL LITORAL',
        'licenciatura@odontologia.example', 'VAN', 21100);
insert into ctroatencion (centro, descr, domicilio, colonia, telefono1, responsable, prog,
                          descripcion, correoto, ciudad, cp)
values ('02', 'CLINICA DE ESPECIALIDADES VALLE NORTE', 'AV. DEL PUERTO 1250', 'CENTRO',
        '(686)555-0143', 'DR. TOMAS IBARRA LUNA', '12520', 'UNIVERSIDAD DEL LITORAL',
        'especialidades@odontologia.example', 'VAN', 21100);
insert into ctroatencion (centro, descr, domicilio, colonia, telefono1, responsable, prog,
                          descripcion, correoto, ciudad, cp)
values ('03', 'CLINICA ODONTOLOGICA COSTA SUR', 'BLVD. DE LA BAHIA 88', 'PLAYA HERMOSA',
        '(646)555-0180', 'DRA. NORMA QUINTERO SOTO', '980', 'UNIVERSIDAD DEL LITORAL',
        'costasur@odontologia.example', 'COS', 22880);

insert into controlexpedientes (campus, num_expediente) values ('000', 1);
insert into controlexpedientes (campus, num_expediente) values ('VAN', 1);
insert into controlexpedientes (campus, num_expediente) values ('COS', 1);

-- The licence clinic offers all but the specialities, which have their own clinic.
insert into serviciosxctro (centro, tipo_prod)
select '01', tipo_prod from areaventa where ciudad = 'VAN';
insert into serviciosxctro (centro, tipo_prod)
select '02', tipo_prod from areaventa
 where ciudad = 'VAN' and dirigidoa in ('AD', 'AE', 'ES', 'LE', 'EX', 'OT', 'PG');
insert into serviciosxctro (centro, tipo_prod)
select '03', tipo_prod from areaventa where ciudad = 'COS';

insert into clasifservicios (ciudad, tipo_prod, edadmin, edadmax, requiere_edad, aplicadesc,
                             aplica_anticipo)
select ciudad, tipo_prod,
       decode(descr, 'INFANTIL', 1, 'ADULTOS', 15, 'ODONTOPEDIATRIA', 1, 'ORTODONCIA', 1, 0),
       decode(descr, 'INFANTIL', 14, 'ADULTOS', 100, 'ODONTOPEDIATRIA', 17, 'ORTODONCIA', 100, 0),
       iif(descr in ('INFANTIL', 'ADULTOS', 'ODONTOPEDIATRIA', 'ORTODONCIA'), 'S', 'N'),
       iif(dirigidoa in ('AE', 'AP', 'ES', 'LE'), 'S', 'N'),
       iif(descr in ('LABORATORIOS EXTERNOS', 'PROSTODONCIA', 'ORTODONCIA'), 'S', 'N')
  from areaventa;

-- Places of care. Areas without one ask for none.
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('01', 3, 'I1', 'CLINICA INFANTIL I', '12510', 'AP', 'DRA. PAULA CEJA');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('01', 3, 'I2', 'CLINICA INFANTIL II', '12510', 'AP', 'DR. RAUL OSUNA');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('01', 4, 'A1', 'CLINICA DE ADULTOS I', '12510', 'AP', 'DRA. IRMA COTA');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('01', 4, 'A2', 'CLINICA DE ADULTOS II', '12510', 'AP', 'DR. HUGO BELTRAN');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('01', 4, 'A3', 'CLINICA INTEGRAL', '12510', 'AP', 'DRA. SILVIA MEZA');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('02', 14, 'EN', 'CLINICA DE ENDODONCIA', '12520', 'AP', 'DR. TOMAS IBARRA');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('02', 96, 'OR', 'CLINICA DE ORTODONCIA', '12520', 'AP', 'DRA. LUCIA FELIX');
insert into areatencion (centro, tipo_prod, area, descr, prog, tipo_serv, responsable)
values ('03', 54, 'A1', 'CLINICA COSTA SUR', '980', 'AP', 'DRA. NORMA QUINTERO');

-- Classes 2, 3, 4 and 11 belong to administrative employees, 5, 6, 7 and 12 to academic ones.
-- 11 and 12 are the grown children who still study: they stand behind 4 and 7.
insert into prestaciones values (2, 'EMPLEADO ADMINISTRATIVO', '');
insert into prestaciones values (3, 'CONYUGE DE EMPLEADO ADMINISTRATIVO', '');
insert into prestaciones values (4, 'HIJO DE EMPLEADO ADMINISTRATIVO', '');
insert into prestaciones values (5, 'EMPLEADO ACADEMICO', '');
insert into prestaciones values (6, 'CONYUGE DE EMPLEADO ACADEMICO', '');
insert into prestaciones values (7, 'HIJO DE EMPLEADO ACADEMICO', '');
insert into prestaciones values (11, 'HIJO ESTUDIANTE DE EMPLEADO ADMINISTRATIVO', '4');
insert into prestaciones values (12, 'HIJO ESTUDIANTE DE EMPLEADO ACADEMICO', '7');

-- Employees and children pay half, spouses 60 %; opening a dossier is free for employees, the
-- children's clinic is free for their children. edad limits the grown children.
insert into prestacionxserv (centro, tipo_prod, prestacion, porcent, edad)
select s.centro, s.tipo_prod, p.prestacion,
       case
           when a.descr = 'APERTURA DE EXPEDIENTE' and p.prestacion in (2, 5) then 100
           when a.descr = 'INFANTIL' and p.prestacion in (4, 7) then 100
           when p.prestacion in (3, 6) then 40
           else 50
       end,
       iif(p.prestacion in (11, 12), 25, 0)
  from serviciosxctro s
  join areaventa a on a.tipo_prod = s.tipo_prod
  join prestaciones p on p.prestacion > 1
 where a.dirigidoa in ('AE', 'AP', 'ES', 'LE');

-- Desks of both campuses. Desk 12 shares its first digit with desk 1. Desk 2 banks its cards.
insert into datoscaja (num_caja, nota_vta, nombre, origen, autoriza, prog_pol, serie, serien,
                       correoto, bancomn, bancodll, tipopaquete, campus, sistemaid, tipoliza,
                       fechapaquete, paqueteid, pk_tipo_caja)
values (1, 1, 'CAJA LICENCIATURA', 'INGRESOS CAJA LICENCIATURA', 'admin', 12510, 'A', 'NA',
        'caja1@odontologia.example', 1, 2, 1, '2', 5, 1, date '2024-01-02', 'ING-2', 0);
insert into datoscaja (num_caja, nota_vta, nombre, origen, autoriza, prog_pol, serie, serien,
                       correoto, bancomn, bancodll, tipopaquete, campus, sistemaid, tipoliza,
                       fechapaquete, paqueteid, pk_tipo_caja)
values (2, 1, 'CAJA COSTA SUR', 'INGRESOS CAJA COSTA SUR', 'admin', 980, 'B', 'NB',
        'caja2@odontologia.example', 3, 4, 1, '3', 5, 1, date '2024-01-02', 'ING-3', 1);
insert into datoscaja (num_caja, nota_vta, nombre, origen, autoriza, prog_pol, serie, serien,
                       correoto, bancomn, bancodll, tipopaquete, campus, sistemaid, tipoliza,
                       fechapaquete, paqueteid, pk_tipo_caja)
values (12, 1, 'CAJA ESPECIALIDADES', 'INGRESOS CAJA ESPECIALIDADES', 'admin', 12520, 'C', 'NC',
        'caja12@odontologia.example', 1, 2, 1, '2', 5, 1, date '2024-01-02', 'ING-2', 0);

insert into tipocambio (fecha, tipo_cam) values (date '2024-01-02', 18.1234);
insert into tipocambio (fecha, tipo_cam) values (date '2024-06-03', 18.9);
insert into tipocambio (fecha, tipo_cam) values (date '2024-11-18', 19.5);
update control set tipo_cam = 19.5 where llave = '1';

insert into metodopagocfdi (clave, descripcion) values ('01', 'EFECTIVO');
insert into metodopagocfdi (clave, descripcion) values ('02', 'CHEQUE NOMINATIVO');
insert into metodopagocfdi (clave, descripcion) values ('03', 'TRANSFERENCIA ELECTRONICA');
insert into metodopagocfdi (clave, descripcion) values ('04', 'TARJETA DE CREDITO');
insert into metodopagocfdi (clave, descripcion) values ('28', 'TARJETA DE DEBITO');
insert into metodopagocfdi (clave, descripcion) values ('99', 'POR DEFINIR');

update tipo_formapago
   set generoid = 1, grupoid = 1, cgrubroid = 1, cuentaid = 1, subctaid = 1,
       nomenclatura = '1.1.1.1.1';

insert into labexternos (subsubcta, prog, descr, domicilio, colonia, ciudad, telefono, correo,
                         responsable, nomenclatura, activo, rfc, cp, tipo_prod, campus)
values (301, 12510, 'LABORATORIO DENTAL DEL VALLE', 'CALLE MORELOS 410', 'CENTRO', 'VALLE NORTE',
        '(686)555-0201', 'valle@laboratorio.example', 'T.D. JORGE NAVA', '2.1.1.9.1.301', 'S',
        'LDV990312AA1', 21100, 7, 'VAN');
insert into labexternos (subsubcta, prog, descr, domicilio, colonia, ciudad, telefono, correo,
                         responsable, nomenclatura, activo, rfc, cp, tipo_prod, campus)
values (302, 12510, 'CERAMICA Y PROTESIS NORTE', 'CALLE ALDAMA 77', 'NUEVA', 'VALLE NORTE',
        '(686)555-0202', 'norte@laboratorio.example', 'T.D. ALMA RIOS', '2.1.1.9.1.302', 'S',
        'CPN050820BB2', 21120, 7, 'VAN');

-- The accounts as finance has them.
insert into cg_banco values (1, 1, 1, 2, 1, 11, '1.1.1.2.1.11', 'BANCO DEL LITORAL 4410 INGRESOS VALLE NORTE', 8, 1, 1);
insert into cg_banco values (1, 1, 1, 2, 1, 12, '1.1.1.2.1.12', 'BANCO DEL LITORAL 4411 DOLARES VALLE NORTE', 8, 2, 2);
insert into cg_banco values (1, 1, 1, 2, 1, 13, '1.1.1.2.1.13', 'BANCO DE LA BAHIA 7720 INGRESOS COSTA SUR', 8, 3, 1);
insert into cg_banco values (1, 1, 1, 2, 1, 14, '1.1.1.2.1.14', 'BANCO DE LA BAHIA 7721 DOLARES COSTA SUR', 8, 4, 2);
insert into cg_bancoporprograma (bancoid, programaid) values (1, 12510);
insert into cg_bancoporprograma (bancoid, programaid) values (2, 12510);
insert into cg_bancoporprograma (bancoid, programaid) values (3, 980);
insert into cg_bancoporprograma (bancoid, programaid) values (4, 980);

commit;
