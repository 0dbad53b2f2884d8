-- Lists come in Spanish order; equality stays exact.
create collation es for utf8 from unicode 'LOCALE=es_MX';

commit;
