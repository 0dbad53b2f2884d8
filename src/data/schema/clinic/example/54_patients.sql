-- Admissions and dossiers of the example school. Ages are those of the day of admission.

set term ^ ;

-- An admission with the patient's data on a day of the past; returns its folio.
create procedure alta_admision (
    fecha date, centro varchar(4), status varchar(2), paterno varchar(40), materno varchar(40),
    paciente varchar(70), sexo varchar(1), nacimiento date, alumno integer)
returns (folio integer)
as
    declare edad smallint;
    declare nombre_alumno varchar(150);
begin
    rdb$set_context('USER_SESSION', 'AHORA', fecha || ' 09:00:00');
    select c.folioad from control c where c.llave = '1' into :folio;
    select l.nombre from listalumnos l where l.matricula = :alumno into :nombre_alumno;
    edad = coalesce(trunc(datediff(day, nacimiento, fecha) / 365.25e0), 0);

    execute procedure kdregistra_admision_p(
        :folio, 0, 0, 'N', null, '', :alumno, :nombre_alumno, :status, '', '', '', null, '', '',
        :centro);
    execute procedure kdregistra_datosgenerales_p(
        :folio, :paterno, :materno, :paciente, :edad, :sexo,
        trim(iif(:nacimiento is null, '', iif(:edad <= 13, 'I', 'A'))), 'CALLE SEXTA 215',
        'CENTRO', 'VALLE NORTE', 21100, :nacimiento, '', 'SOLTERO', '(686)555-0111', '', '', '', '', '', '',
        '', '', '6', '', '1', '', '3', '',
        trim(trim(:paterno || ' ' || :materno) || ' ' || :paciente));
    insert into antecedentes (folio, heredo_fam, nopatologicos, alergias, lugar)
    values (:folio, 'S.D.P.', 'S.D.P.', 'N', 'N');
    rdb$set_context('USER_SESSION', 'AHORA', null);
    suspend;
end^

-- A dossier on an admission of its own.
create procedure alta_expediente (
    fecha date, centro varchar(4), expediente varchar(10), paterno varchar(40),
    materno varchar(40), paciente varchar(70), sexo varchar(1), nacimiento date, alumno integer,
    prestacion integer, num_empl integer, status varchar(2))
as
    declare folio integer;
    declare campus varchar(3);
    declare numero integer;
begin
    select a.folio
      from alta_admision(:fecha, :centro, 'AU', :paterno, :materno, :paciente, :sexo, :nacimiento,
                         :alumno) a
      into :folio;
    select c.ciudad from ctroatencion c where c.centro = :centro into :campus;

    insert into expedientes (expediente, folio, prestacion, centro, num_empl, empleado,
                             dependencia, status, nombre, campus, fecha_ap, num_caja, nota_vta,
                             observacion, expedienteold)
    values (:expediente, :folio, :prestacion, :centro, :num_empl,
            coalesce((select e.nombre from empleados e where e.num_empl = :num_empl), ''),
            coalesce((select e.descripcion from empleados e where e.num_empl = :num_empl), ''),
            :status, trim(trim(:paterno || ' ' || :materno) || ' ' || :paciente), :campus, :fecha,
            0, 0, '', '');

    numero = cast(left(expediente, 5) as integer);
    update controlexpedientes k
       set k.num_expediente = :numero + 1
     where k.campus = :campus
       and k.num_expediente <= :numero;
end^

set term ; ^
commit;

-- Valle Norte, plain patients: adults, children, and the limits of 13, 14 and 15 years.
execute procedure alta_expediente('2024-02-12', '01', '00001/24', 'PEREZ', 'LOPEZ', 'ANA LUISA', 'F', '1985-04-20', 1100001, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-12', '01', '00002/24', 'NUÑEZ', 'ARAGON', 'RICARDO', 'M', '1971-10-02', 1100002, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-13', '01', '00003/24', 'GARCIA', 'SOLIS', 'SOFIA', 'F', '2016-01-15', 1100001, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-14', '01', '00004/24', 'MENDOZA', 'TRUJILLO', 'IKER', 'M', '2011-02-01', 1100003, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-14', '01', '00005/24', 'IBAÑEZ', 'CORTEZ', 'RENE', 'M', '2010-01-20', 1100003, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-15', '01', '00006/24', 'ZUÑIGA', 'O''FARRILL', 'PATRICIO', 'M', '2009-01-10', 1100003, 1, 0, 'AU');
-- Employees and their families: half price, free children's clinic, a grown child who may study.
execute procedure alta_expediente('2024-02-19', '01', '00007/24', 'SALCIDO', 'MENDEZ', 'ARTURO', 'M', '1979-07-07', 1100002, 2, 1001, 'AU');
execute procedure alta_expediente('2024-02-19', '01', '00008/24', 'SALCIDO', 'PONCE', 'DANIELA', 'F', '2014-03-03', 1100001, 4, 1001, 'AU');
execute procedure alta_expediente('2024-02-20', '01', '00009/24', 'SALCIDO', 'PONCE', 'ARTURO', 'M', '2003-08-21', 1100002, 4, 1001, 'AU');
execute procedure alta_expediente('2024-02-20', '01', '00010/24', 'PONCE', 'HARO', 'MARIA DEL CARMEN', 'F', '1981-12-30', 1100001, 3, 1001, 'AU');
execute procedure alta_expediente('2024-02-21', '01', '00011/24', 'AVILA', 'CAMPOS', 'DOLORES', 'F', '1968-05-05', 1100002, 5, 2001, 'AU');
execute procedure alta_expediente('2024-02-21', '01', '00012/24', 'ROSAS', 'AVILA', 'FABIOLA', 'F', '2001-09-09', 1100003, 12, 2001, 'AU');
-- The employee left, the dossier is cancelled, the dossier belongs to another centre.
execute procedure alta_expediente('2024-02-22', '01', '00013/24', 'ROBLES', 'NUÑEZ', 'CESAR IVAN', 'M', '1990-11-11', 1100002, 2, 1003, 'AU');
execute procedure alta_expediente('2024-02-22', '01', '00014/24', 'VILLA', 'SANCHEZ', 'TOMAS', 'M', '1960-06-16', 1100001, 1, 0, 'CA');
execute procedure alta_expediente('2024-02-23', '02', '00015/24', 'HERRERA', 'DIAZ', 'GABRIELA', 'F', '1995-02-27', null, 1, 0, 'AU');
execute procedure alta_expediente('2024-02-26', '02', '00016/24', 'QUIROZ', 'LEAL', 'MAURICIO', 'M', '2012-04-04', null, 1, 0, 'AU');
-- More of the licence clinic, for its lists.
execute procedure alta_expediente('2024-03-04', '01', '00017/24', 'ACOSTA', 'BERNAL', 'JULIETA', 'F', '1988-08-18', 1100001, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-04', '01', '00018/24', 'ÁLVAREZ', 'CUEVAS', 'ÓSCAR', 'M', '1999-01-31', 1100002, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-05', '01', '00019/24', 'BAÑUELOS', 'RAMOS', 'LETICIA', 'F', '1955-03-13', 1100003, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-06', '01', '00020/24', 'CAMACHO', 'VERDUGO', 'ISMAEL', 'M', '1974-09-24', 1100001, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-07', '01', '00021/24', 'ECHEVERRIA', 'DE LA TORRE', 'MARIA GUADALUPE', 'F', '1949-12-12', 1100002, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-11', '01', '00022/24', 'FLORES', 'MACIAS', 'XIMENA', 'F', '2018-05-01', 1100003, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-12', '01', '00023/24', 'LARIOS', 'PINTO', 'SAMUEL', 'M', '2015-10-10', 1100001, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-13', '01', '00024/24', 'MURILLO', 'GAXIOLA', 'ELISA', 'F', '2007-07-19', 1100002, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-14', '01', '00025/24', 'ZAMORA', 'YAÑEZ', 'ADRIAN', 'M', '1992-02-02', 1100003, 1, 0, 'AU');
-- Costa Sur counts its own numbers, so the first ones exist in both campuses.
execute procedure alta_expediente('2024-03-01', '03', '00001/24', 'CARRILLO', 'MEZA', 'BEATRIZ', 'F', '1983-03-23', 1100006, 1, 0, 'AU');
execute procedure alta_expediente('2024-03-01', '03', '00002/24', 'DURAN', 'LIZARRAGA', 'MARCO ANTONIO', 'M', '2013-06-14', 1100006, 1, 0, 'AU');
commit;

-- Admissions without a dossier: authorised ones of the last days, one of another centre, and two that
-- wait.
set term ^ ;
execute block as
    declare folio integer;
begin
    select folio from alta_admision(current_date - 9, '01', 'AU', 'ORTEGA', 'BRISEÑO', 'CLAUDIA', 'F', '1990-05-15', 1100004) into :folio;
    select folio from alta_admision(current_date - 8, '01', 'AU', 'PRECIADO', 'VERA', 'NICOLAS', 'M', '2017-11-20', 1100004) into :folio;
    select folio from alta_admision(current_date - 5, '01', 'AU', 'REYNOSO', 'CHAIDEZ', 'MIRIAM', 'F', '1977-01-08', 1100005) into :folio;
    select folio from alta_admision(current_date - 4, '02', 'AU', 'TIRADO', 'OCHOA', 'FELIPE', 'M', '1966-08-28', null) into :folio;
    select folio from alta_admision(current_date - 2, '01', 'PD', 'URIAS', 'BOJORQUEZ', 'ANGELA', 'F', null, null) into :folio;
    select folio from alta_admision(current_date - 1, '01', 'PD', 'VALDEZ', 'INZUNZA', 'RAMON', 'M', null, null) into :folio;
    select folio from alta_admision(current_date - 3, '03', 'AU', 'WONG', 'FELIX', 'LORENA', 'F', '1987-02-17', 1100006) into :folio;
end^
set term ; ^
commit;

drop procedure alta_expediente;
drop procedure alta_admision;
commit;

-- A loan that stands and one that came back.
insert into prestamo_exp (matricula, campus, expediente, nombre, status, fecha_prestamo, centro,
                          alumno)
values (1100001, 'VAN', '00001/24', 'PEREZ LOPEZ ANA LUISA', 'PR', date '2024-09-02', '01',
        'ALVAREZ CANO JIMENA');
insert into prestamo_exp (matricula, campus, expediente, nombre, status, fecha_prestamo, centro,
                          alumno, fecha_devolucion)
values (1100002, 'VAN', '00002/24', 'NUÑEZ ARAGON RICARDO', 'RG', date '2024-09-02', '01',
        'BARRERA LIMON DIEGO', date '2024-09-06');
commit;
