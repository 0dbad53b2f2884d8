set term ^ ;
create procedure alta_alumno (
    matricula integer, paterno varchar(40), materno varchar(40), nombre varchar(70),
    unidad_clave integer, unidad_desc varchar(200), vigencia_clave integer,
    programa_clave integer, programa varchar(100))
as
begin
    insert into padron (matricula, programa_clave, nombre_nom, nombre_paterno, nombre_materno,
                        plan_estudio, programa_estudio, unidad_clave, unidad_desc, vigencia_clave,
                        vigencia_desc)
    values (:matricula, :programa_clave, :nombre, :paterno, :materno, '2018-2', :programa,
            :unidad_clave, :unidad_desc, :vigencia_clave,
            trim(iif(:vigencia_clave = 1, 'ACTIVO', 'BAJA TEMPORAL')));
end^
set term ; ^
commit;

execute procedure alta_alumno(1100001, 'ALVAREZ', 'CANO', 'JIMENA', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100002, 'BARRERA', 'LIMON', 'DIEGO', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100003, 'CASTRO', 'VALLE', 'RENATA', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100004, 'DOMINGUEZ', 'PAZ', 'EMILIO', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100005, 'ESCOBEDO', 'NIETO', 'VALERIA', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100006, 'FIERRO', 'ROSAS', 'MATEO', 240, 'FACULTAD DE ODONTOLOGIA COSTA SUR', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100007, 'GALINDO', 'MORA', 'XAVIER', 334, 'ESCUELA DE CIENCIAS DE LA SALUD', 1, 4, 'LICENCIADO EN ENFERMERIA');
-- Two programmes, both current; no longer enrolled; another faculty.
execute procedure alta_alumno(1100008, 'HINOJOSA', 'PEÑA', 'LUCERO', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 1, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100008, 'HINOJOSA', 'PEÑA', 'LUCERO', 310, 'FACULTAD DE IDIOMAS', 1, 9, 'LICENCIADO EN DOCENCIA DE IDIOMAS');
execute procedure alta_alumno(1100009, 'INFANTE', 'RUELAS', 'GERARDO', 220, 'FACULTAD DE ODONTOLOGIA VALLE NORTE', 2, 1, 'CIRUJANO DENTISTA');
execute procedure alta_alumno(1100010, 'JUAREZ', 'TOVAR', 'MONICA', 310, 'FACULTAD DE IDIOMAS', 1, 9, 'LICENCIADO EN DOCENCIA DE IDIOMAS');
commit;
drop procedure alta_alumno;

insert into posgrado (matricula, nombres) values (2200001, 'KURI LOZANO ANDREA');
insert into posgrado (matricula, nombres) values (2200002, 'LANDEROS QUEZADA PABLO');

commit;
