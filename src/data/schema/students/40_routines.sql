set term ^ ;

-- A student by enrolment number: a row per programme, current ones first; none when unknown.
create or alter procedure matricula_padron_p (p_matricula integer)
returns (
    matricula integer,
    nombre_nom varchar(70),
    nombre_paterno varchar(40),
    nombre_materno varchar(40),
    plan_estudio varchar(10),
    programa_estudio varchar(100),
    unidad_clave integer,
    unidad_desc varchar(200),
    vigencia_clave integer,
    vigencia_desc varchar(40))
as
begin
    for select p.matricula, p.nombre_nom, p.nombre_paterno, p.nombre_materno, p.plan_estudio,
               p.programa_estudio, p.unidad_clave, p.unidad_desc, p.vigencia_clave,
               p.vigencia_desc
          from padron p
         where p.matricula = :p_matricula
         order by iif(p.vigencia_clave = 1, 0, 1), p.programa_clave
          into :matricula, :nombre_nom, :nombre_paterno, :nombre_materno, :plan_estudio,
               :programa_estudio, :unidad_clave, :unidad_desc, :vigencia_clave, :vigencia_desc
    do
        suspend;
end^

set term ; ^

commit;
