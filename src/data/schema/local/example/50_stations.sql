insert into unidades (unidad, descripcion) values (220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE');
insert into unidades (unidad, descripcion) values (240, 'FACULTAD DE ODONTOLOGIA COSTA SUR');
insert into unidades (unidad, descripcion) values (334, 'ESCUELA DE CIENCIAS DE LA SALUD');

commit;
