-- Which station works on the last note of a desk.
create table uso_caja (
    num_caja integer not null,
    conexion bigint,
    nota_vta integer,
    momento timestamp,
    constraint pk_uso_caja primary key (num_caja)
);
