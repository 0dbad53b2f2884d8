-- Collation and domains of the clinic database.

-- Lists come in Spanish order; equality stays exact, and "starting with" keeps its index.
create collation es for utf8 from unicode 'LOCALE=es_MX';

-- Amounts and quantities that are added up: one NULL would empty a sum.
create domain dinero as double precision default 0 not null;

-- The whole name of a person, wherever it is written: the queries that find a patient's notes
-- compare these columns with each other.
create domain nombre_completo as varchar(100) collate es;

-- Five digits, "/", two of the year; labels and numbers of the former system may be longer.
create domain numero_expediente as varchar(10);

commit;
