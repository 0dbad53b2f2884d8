-- Two copies of every receipt.

insert into recibos (recibo, descripcion, tipo_serv) values (1, 'ORIGINAL', '');
insert into recibos (recibo, descripcion, tipo_serv) values (2, 'COPIA', '');

commit;
