-- Running numbers; a trigger gives them where the station leaves them NULL or 0.

create sequence sq_tipocambio;
create sequence sq_prestamo_exp;
create sequence sq_estadocuenta;

commit;
