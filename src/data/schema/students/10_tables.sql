-- The roll of the university's students, as the look-up by enrolment number needs it.

-- One row per programme of a student. vigencia_clave 1: enrolled at present.
create table padron (
    matricula integer not null,
    programa_clave integer not null,
    nombre_nom varchar(70) not null,
    nombre_paterno varchar(40) not null,
    nombre_materno varchar(40),
    plan_estudio varchar(10),
    programa_estudio varchar(100),
    unidad_clave integer,
    unidad_desc varchar(200),
    vigencia_clave integer,
    vigencia_desc varchar(40),
    constraint pk_padron primary key (matricula, programa_clave)
);

create table posgrado (
    matricula integer not null,
    nombres varchar(100) not null,
    constraint pk_posgrado primary key (matricula)
);

create view v_infoalumnos2 (matricula, nombres) as
select matricula, nombres
from posgrado;

commit;
