-- The day and the moment, as every routine of this database asks for them.
--
-- A test moves the clock of its own attachment, and of no other, with
--     select rdb$set_context('USER_SESSION', 'AHORA', '2024-03-15 10:30:00') from rdb$database;
-- and gives the real clock back by setting it to NULL. Detaching forgets it. A text that is no
-- moment fails in the routine that asks.

set term ^ ;

create or alter function ahora returns timestamp
as
begin
    return coalesce(cast(rdb$get_context('USER_SESSION', 'AHORA') as timestamp),
                    current_timestamp);
end^

create or alter function hoy returns date
as
begin
    return cast(ahora() as date);
end^

set term ; ^

commit;
