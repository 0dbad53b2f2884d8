#!/bin/bash
# Databases as they were made before they knew a version are brought up to date and must not differ
# from new ones: tables, columns, keys, indices, routines, triggers, sequences.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
work=$(mktemp -d)
holder=
trap '[ -z "$holder" ] || kill "$holder" 2> /dev/null || true; rm -rf "$work"' EXIT

fail() { echo "upgrade test: $1" >&2; exit 1; }
# expect CODE WORDS COMMAND...: the command ends with this code and says these words.
expect() {
    local wanted=$1 words=$2 code=0
    shift 2
    "$@" > "$work/said" 2>&1 || code=$?
    [ "$code" = "$wanted" ] || { cat "$work/said"; fail "$* ended with $code, not $wanted"; }
    grep -qF -- "$words" "$work/said" || { cat "$work/said"; fail "$* doesn't say '$words'"; }
}

"$here/scripts/create-databases" "$work/new" > /dev/null
mkdir -p "$work/old/DataBase/.lock" "$work/version_0"
tar -C "$work/version_0" -xJf "$here/tests/upgrade/version_0.tar.xz"
export LC_ALL=C.UTF-8 FIREBIRD_LOCK=$work/old/DataBase/.lock
declare -A file=([local]=BD_LOCAL [clinic]=BD_ODONTOLOGIA [finance]=BD_FINANZAS
    [students]=BD_ESCOLARES [legacy]=BD_ANTERIOR)
for name in "${!file[@]}"; do
    {
        echo "create database '$work/old/DataBase/${file[$name]}.GDB' user 'SYSDBA'"
        echo "  page_size 8192 default character set UTF8;"
        echo "set autoddl off;"
        cat "$work/version_0/$name"/*.sql
    } | isql-fb -quiet -bail -charset UTF8
done

upgrade=$here/scripts/upgrade-databases
clinic=$work/old/DataBase/BD_ODONTOLOGIA.GDB
expect 3 "BD_ODONTOLOGIA.GDB: version 0" "$upgrade" "$work/old" --check

# Somebody is connected: nothing is written.
mkfifo "$work/keys"
isql-fb -quiet -user SYSDBA "$clinic" < "$work/keys" > "$work/holder" 2>&1 &
holder=$!
exec 7> "$work/keys"
echo "select 'connected' from rdb\$database;" >&7
until grep -q connected "$work/holder"; do kill -0 $holder || fail "no station"; done
expect 1 "BD_ODONTOLOGIA.GDB" "$upgrade" "$work/old"
exec 7>&-
wait $holder || true
holder=
expect 3 "BD_ODONTOLOGIA.GDB: version 0" "$upgrade" "$work/old" --check
[ ! -e "$work/old/Respaldos" ] || fail "a refused upgrade left backups"

expect 0 "BD_ODONTOLOGIA.GDB: backed up to" "$upgrade" "$work/old"
expect 0 "all databases are up to date" "$upgrade" "$work/old"
for name in "${!file[@]}"; do
    for state in old new; do
        FIREBIRD_LOCK=$work/$state/DataBase/.lock \
            isql-fb -x -charset UTF8 -user SYSDBA "$work/$state/DataBase/${file[$name]}.GDB" |
            sed '/CREATE DATABASE/d' > "$work/$state.sql"
    done
    grep -q 'CREATE TABLE ESQUEMA' "$work/old.sql" || fail "$name: no version"
    diff "$work/old.sql" "$work/new.sql" || fail "$name: differs from a new database"
done

expect 0 "BD_FINANZAS.GDB" "$here/scripts/backup" "$work/old" "$work/backups"
[ "$(ls "$work"/backups/*/BD_*.fbk | wc -l)" = 5 ] || fail "five databases, other backups"
expect 0 "statistics set" "$here/scripts/maintain" "$work/old"

echo "insert into esquema (version) values (99); commit;" | isql-fb -quiet -bail "$clinic"
expect 4 "newer than this program's" "$upgrade" "$work/old"
