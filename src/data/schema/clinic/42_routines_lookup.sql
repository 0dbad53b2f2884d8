-- What the note asks before it is written.

set term ^ ;

-- The sales areas of a centre for a service type. Areas out of use are listed too: old notes are
-- shown through this list.
create or alter procedure kdserviciosxctros (p_centro varchar(4), p_dirigido varchar(2))
returns (
    tipo_prod integer,
    descr varchar(80),
    anticipo varchar(1),
    edadmin integer,
    edadmax integer)
as
begin
    for select a.tipo_prod, a.descr, iif(k.aplica_anticipo = 'S', 'S', 'N'),
               coalesce(k.edadmin, 0), coalesce(k.edadmax, 0)
          from serviciosxctro s
          join areaventa a on a.tipo_prod = s.tipo_prod
          left join ctroatencion c on c.centro = s.centro
          left join clasifservicios k on k.ciudad = c.ciudad and k.tipo_prod = s.tipo_prod
         where s.centro = :p_centro
           and a.dirigidoa = :p_dirigido
         order by a.tipo_prod
          into :tipo_prod, :descr, :anticipo, :edadmin, :edadmax
    do
        suspend;
end^

-- Active dossiers since a day, newest first.
-- ban: '1' the campus by patient type, '2' the centre by patient type, '3' the centre, '4' the
-- campus. An empty or NULL tipo takes every patient type. folio + 0 keeps the dossier's index in
-- front, so that the first page comes without reading the rest.
create or alter procedure kdcargarexp (
    cent varchar(4),
    cd varchar(3),
    fecha date,
    tipo varchar(1),
    ban varchar(1))
returns (
    expediente varchar(10),
    paterno varchar(42),
    materno varchar(42),
    paciente varchar(72),
    fecha_nac date,
    edad smallint,
    centro varchar(4))
as
begin
    if (coalesce(ban, '') in ('3', '4') or trim(tipo) = '') then
        tipo = null;

    if (ban in ('2', '3')) then
    begin
        for select e.expediente, d.paterno, d.materno, d.paciente, d.fecha_nac, d.edad, e.centro
              from expedientes e
              join datosgenerales d on d.folio = e.folio + 0
             where e.centro = :cent
               and e.fecha_ap >= :fecha
               and e.status = 'AU'
               and (:tipo is null or d.tipopaciente = :tipo)
             order by e.centro desc, e.fecha_ap desc
              into :expediente, :paterno, :materno, :paciente, :fecha_nac, :edad, :centro
        do
            suspend;
    end
    else if (ban in ('1', '4')) then
    begin
        for select e.expediente, d.paterno, d.materno, d.paciente, d.fecha_nac, d.edad, e.centro
              from expedientes e
              join datosgenerales d on d.folio = e.folio + 0
             where e.campus = :cd
               and e.fecha_ap >= :fecha
               and e.status = 'AU'
               and (:tipo is null or d.tipopaciente = :tipo)
             order by e.campus desc, e.fecha_ap desc
              into :expediente, :paterno, :materno, :paciente, :fecha_nac, :edad, :centro
        do
            suspend;
    end
end^

-- An employee; no row when unknown. Stations test mensaje for the exact text of a current one.
create or alter procedure kdconsulta_empleado_p (p_numempl integer)
returns (
    nombre varchar(100),
    cve_unida varchar(10),
    descripcion varchar(80),
    tipo_empleado integer,
    vigente varchar(1),
    mensaje varchar(80))
as
begin
    for select e.nombre, e.cve_unida, e.descripcion, e.tipo_empleado, e.vigente,
               trim(iif(e.vigente = '1', 'EMPLEADO VIGENTE', 'EMPLEADO NO VIGENTE'))
          from empleados e
         where e.num_empl = :p_numempl
          into :nombre, :cve_unida, :descripcion, :tipo_empleado, :vigente, :mensaje
    do
        suspend;
end^

-- May this treatment be charged to this dossier? Always one row: valor 0 with the reason when it
-- stands on a live note whose account still has a balance, else 1.
create or alter procedure kdverifica_pagodetratamiento_p (p_expediente varchar(10), p_codigo integer)
returns (valor integer, mensaje varchar(100))
as
begin
    valor = 1;
    mensaje = '';

    -- From the few charges of the dossier outwards, however the tables have grown.
    if (exists (select 1
                  from historicoodontologia h
                 where h.expediente = :p_expediente
                   and h.codigo = :p_codigo
                   and exists (select 1
                                 from registrovtas r
                                where r.num_caja = h.num_caja
                                  and r.nota_vta = h.nota_vta
                                  and r.status <> 'CA'
                                  and exists (select 1
                                                from anticipos a
                                               where a.recibo_anticipo = r.recibo
                                                 and a.expediente = h.expediente
                                                 and a.saldo > 0)))) then
    begin
        valor = 0;
        mensaje = 'El tratamiento ya está registrado y tiene saldo pendiente, registre un abono.';
    end

    suspend;
end^

set term ; ^

commit;
