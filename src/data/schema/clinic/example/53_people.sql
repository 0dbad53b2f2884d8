-- Users, employees and students of the example school.

-- Columns of the rights that a profile gets; every other one is 'N'.
set term ^ ;
create procedure alta_usuario (
    usuario varchar(8), pass varchar(8), nombre varchar(60), nombrecorto varchar(20),
    acceso varchar(2), turno varchar(2), num_caja varchar(10), centro varchar(4),
    origen varchar(3), campus varchar(1), mpo smallint, usuarioid integer)
as
    declare caja varchar(1);
    declare admisiones varchar(1);
    declare clinica varchar(1);
begin
    insert into controlusuarios (usuario, pass, nombre, nombrecorto, acceso, centro, turno,
                                 autoriza, campus, num_caja, origen, mpo, usuarioid)
    values (:usuario, :pass, :nombre, :nombrecorto, :acceso, :centro, :turno, 'admin', :campus,
            :num_caja, :origen, :mpo, :usuarioid);

    caja = iif(acceso in ('AM', 'CA'), 'S', 'N');
    admisiones = iif(acceso in ('AM', 'CA', 'MA', 'AL'), 'S', 'N');
    clinica = iif(acceso in ('AM', 'MA', 'AL'), 'S', 'N');

    insert into usuarios_m (
        origen, centro, usuario, acceso, a3, b1, b2, b3, b4, b5, b6, b7, b8, b9, b10, b11a, b12a,
        c1, c2, c3, d1, d2, e1, e2, e3, e4, e5a, e5b, e5c, e5d, e6, e7, e8, e9, f1, f2, f3, i1, i2,
        h1a, h1b, h2a, h2b, h2c, h2d, h2e, h2f, j3)
    values (
        :origen, :centro, :usuario, :acceso, :caja, 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N',
        'N', 'N', 'N', :admisiones, :admisiones, :admisiones, :admisiones, :clinica, :caja, :caja,
        :caja, :caja, :caja, :caja, :caja, :caja, :caja, :caja, :caja, :caja, :admisiones,
        :admisiones, :clinica, 'N', 'N', :clinica, :clinica, :caja, :caja, :caja, :caja, :caja, 'N',
        'N');
end^
set term ; ^
commit;

-- One administrator (of a new clinic), cashiers for every desk and shift, one of each other profile.
update controlusuarios
   set centro = '01', num_caja = '1', campus = '2', usuarioid = 1
 where usuario = 'admin';
update usuarios_m set centro = '01' where usuario = 'admin';

execute procedure alta_usuario('cajero1', 'caja1', 'MARIA FERNANDA OCHOA LARA', 'FERNANDA OCHOA',
    'CA', 'MA', '1', '01', 'VAN', '2', 1, 2);
execute procedure alta_usuario('cajero2', 'caja2', 'JOSE LUIS PERALTA MUÑOZ', 'JOSE LUIS PERALTA',
    'CA', 'CO', '2', '03', 'COS', '3', 2, 3);
execute procedure alta_usuario('cajero3', 'caja3', 'ROSA ICELA DUARTE VEGA', 'ROSA DUARTE',
    'CA', 'CO', '12', '02', 'VAN', '2', 1, 4);
execute procedure alta_usuario('cajero4', 'caja4', 'OSCAR DANIEL LEYVA PINO', 'OSCAR LEYVA',
    'CA', 'VE', '1', '01', 'VAN', '2', 1, 5);
execute procedure alta_usuario('admision', 'adm', 'TERESA GUZMAN ARCE', 'TERESA GUZMAN',
    'MA', 'CO', '0', '01', 'VAN', '2', 1, null);
execute procedure alta_usuario('clinica', 'cli', 'ASISTENTE DE CLINICA', 'ASISTENTE',
    'AL', 'CO', '0', '01', 'VAN', '2', 1, null);
commit;
drop procedure alta_usuario;
commit;

insert into empleados values (1001, 'ARTURO SALCIDO MENDEZ', '2201', 'SERVICIOS GENERALES', 1, '1');
insert into empleados values (1002, 'BERENICE LUGO TAPIA', '2105', 'TESORERIA', 1, '1');
insert into empleados values (1003, 'CESAR IVAN ROBLES NUÑEZ', '2105', 'TESORERIA', 1, '0');
insert into empleados values (2001, 'DOLORES AVILA CAMPOS', '3310', 'FACULTAD DE ODONTOLOGIA', 2, '1');
insert into empleados values (2002, 'EFRAIN SOTO BARRAZA', '3340', 'FACULTAD DE MEDICINA', 2, '1');
insert into empleados values (2003, 'GUADALUPE ESPINOZA RIVAS', '3310', 'FACULTAD DE ODONTOLOGIA', 2, '0');
insert into empleados values (3001, 'HECTOR MANUEL ZAVALA CRUZ', '1100', 'RECTORIA', 3, '1');

insert into listalumnos values (1100001, 'ALVAREZ CANO JIMENA', '7', date '2024-02-05', 'A', '01', 2, 'S');
insert into listalumnos values (1100002, 'BARRERA LIMON DIEGO', '7', date '2024-02-05', 'A', '01', 1, 'S');
insert into listalumnos values (1100003, 'CASTRO VALLE RENATA', '8', date '2024-02-05', 'B', '01', 1, 'S');
insert into listalumnos values (1100004, 'DOMINGUEZ PAZ EMILIO', '8', date '2024-02-05', 'B', '01', 0, 'N');
insert into listalumnos values (1100005, 'ESCOBEDO NIETO VALERIA', '9', date '2024-02-05', 'A', '01', 0, 'N');
insert into listalumnos values (1100006, 'FIERRO ROSAS MATEO', '9', date '2024-02-05', 'A', '03', 1, 'S');

commit;
