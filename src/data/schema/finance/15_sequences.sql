-- Numbers of users; a trigger gives them where the station leaves them NULL or 0.

create sequence sq_cg_usuario;

commit;
