-- The note whose receipts are being printed.
create table recibopendiente (
    llave smallint not null,
    num_caja integer not null,
    nota_vta integer not null,
    constraint pk_recibopendiente primary key (llave)
);
