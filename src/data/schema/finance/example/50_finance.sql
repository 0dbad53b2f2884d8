-- What the university's finance knows of the example school.

insert into cg_genero values (1, 'ACTIVO');
insert into cg_genero values (2, 'PASIVO');
insert into cg_genero values (4, 'INGRESOS');
insert into cg_grupo values (1, 1, 'ACTIVO CIRCULANTE');
insert into cg_grupo values (2, 1, 'PASIVO CIRCULANTE');
insert into cg_grupo values (4, 1, 'INGRESOS PROPIOS');
insert into cg_rubro values (1, 1, 1, 'EFECTIVO Y EQUIVALENTES');
insert into cg_rubro values (2, 1, 1, 'CUENTAS POR PAGAR A CORTO PLAZO');
insert into cg_rubro values (4, 1, 7, 'INGRESOS POR VENTA DE SERVICIOS');
insert into cg_cuenta values (1, 1, 1, 1, 'CAJA');
insert into cg_cuenta values (1, 1, 1, 2, 'BANCOS');
insert into cg_cuenta values (2, 1, 1, 9, 'LABORATORIOS EXTERNOS POR PAGAR');
insert into cg_cuenta values (4, 1, 7, 1, 'ADMISIONES Y EXPEDIENTES');
insert into cg_cuenta values (4, 1, 7, 2, 'SERVICIOS DE CLINICA');
insert into cg_cuenta values (4, 1, 7, 3, 'ESPECIALIDADES');
insert into cg_cuenta values (4, 1, 7, 4, 'LABORATORIOS EXTERNOS');
insert into cg_cuenta values (4, 1, 7, 5, 'OTROS SERVICIOS');
insert into cg_subcta
select generoid, grupoid, cgrubroid, cuentaid, 1,
       generoid || '.' || grupoid || '.' || cgrubroid || '.' || cuentaid || '.1', descripcion
  from cg_cuenta;
insert into cg_matrizdi
select generoid, grupoid, cgrubroid, cuentaid, subctaid from cg_subcta;

insert into cg_subsubcta values (2, 1, 1, 9, 1, 301, '2.1.1.9.1.301', 'LABORATORIO DENTAL DEL VALLE');
insert into cg_subsubcta values (2, 1, 1, 9, 1, 302, '2.1.1.9.1.302', 'CERAMICA Y PROTESIS NORTE');
insert into cg_subsubcta values (2, 1, 1, 9, 1, 303, '2.1.1.9.1.303', 'PROTESIS DE LA BAHIA');
insert into cg_subsubcta values (2, 1, 1, 9, 1, 304, '2.1.1.9.1.304', 'ORTODONCIA Y APARATOS DEL NORTE');
insert into cg_subsubcta values (4, 1, 7, 1, 1, 101, '4.1.7.1.1.101', 'ADMISION Y EXPEDIENTE');
insert into cg_subsubcta values (4, 1, 7, 2, 1, 201, '4.1.7.2.1.201', 'CLINICAS DE LICENCIATURA');
insert into cg_subsubcta values (4, 1, 7, 3, 1, 251, '4.1.7.3.1.251', 'CLINICAS DE ESPECIALIDAD');
insert into cg_subsubcta values (4, 1, 7, 4, 1, 301, '4.1.7.4.1.301', 'LABORATORIO DENTAL DEL VALLE');
insert into cg_subsubcta values (4, 1, 7, 4, 1, 302, '4.1.7.4.1.302', 'CERAMICA Y PROTESIS NORTE');
insert into cg_subsubcta values (4, 1, 7, 5, 1, 401, '4.1.7.5.1.401', 'OTROS INGRESOS');

insert into cg_banco values (1, 1, 1, 2, 1, 11, '1.1.1.2.1.11', 'BANCO DEL LITORAL 4410 INGRESOS VALLE NORTE', 8, 1, 1);
insert into cg_banco values (1, 1, 1, 2, 1, 12, '1.1.1.2.1.12', 'BANCO DEL LITORAL 4411 DOLARES VALLE NORTE', 8, 2, 2);
insert into cg_banco values (1, 1, 1, 2, 1, 13, '1.1.1.2.1.13', 'BANCO DE LA BAHIA 7720 INGRESOS COSTA SUR', 8, 3, 1);
insert into cg_banco values (1, 1, 1, 2, 1, 14, '1.1.1.2.1.14', 'BANCO DE LA BAHIA 7721 DOLARES COSTA SUR', 8, 4, 2);
insert into cg_bancoporprograma (bancoid, programaid) values (1, 12510);
insert into cg_bancoporprograma (bancoid, programaid) values (2, 12510);
insert into cg_bancoporprograma (bancoid, programaid) values (3, 980);
insert into cg_bancoporprograma (bancoid, programaid) values (4, 980);

insert into cg_tipodeiva values (1, 'TASA GENERAL', 16, 'IVA16', 1, 'IMPUESTO AL VALOR AGREGADO 16 %');
insert into cg_tipodeiva values (2, 'TASA CERO', 0, 'IVA0', 2, 'IMPUESTO AL VALOR AGREGADO 0 %');
insert into cg_tipodeiva values (3, 'EXENTO', 0, 'EXENTO', 3, 'SERVICIO EXENTO');
insert into cg_clasificacioniva values (1, 1, 'SERVICIOS');
insert into cg_clasificacioniva values (1, 2, 'BIENES');
insert into cg_clasificacioniva values (2, 1, 'LIBROS');
insert into cg_clasificacioniva values (3, 1, 'SERVICIOS MEDICOS Y EDUCATIVOS');

insert into programa values (12510, 'CIRUJANO DENTISTA VALLE NORTE');
insert into programa values (12520, 'ESPECIALIDADES ODONTOLOGICAS');
insert into programa values (980, 'CIRUJANO DENTISTA COSTA SUR');

insert into cg_usuario (app_login, mpo) values ('ADMIN', '1');
insert into cg_usuario (app_login, mpo) values ('CAJERO1', '1');
insert into cg_usuario (app_login, mpo) values ('CAJERO2', '2');
insert into cg_usuario (app_login, mpo) values ('CAJERO3', '1');
insert into cg_usuario (app_login, mpo) values ('CAJERO4', '1');

commit;
