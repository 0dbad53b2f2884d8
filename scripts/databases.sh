# What the scripts share that care for databases. To be sourced, with `here` as the tree's folder.
# User and password from ISC_USER and ISC_PASSWORD.

schema=$here/src/data/schema
user=${ISC_USER:-SYSDBA} password=${ISC_PASSWORD:-brickwall}
unset ISC_USER ISC_PASSWORD ISC_DATABASE FIREBIRD_USER
# Where the machine names no locale, isql drops the letters outside of ASCII.
export LC_ALL=C.UTF-8

for tool in isql-fb gbak gfix; do
    command -v $tool > /dev/null || {
        echo "$tool is missing: apt-get install firebird3.0-utils" >&2
        exit 1
    }
done

# enter_root FOLDER: sets `root` to the whole path of an installation, and the engine's lock folder.
enter_root() {
    [ -e "$1/DataBase/BD_LOCAL.GDB" ] || {
        echo "no installation under '$1': DataBase/BD_LOCAL.GDB is missing" >&2
        exit 2
    }
    root=$(cd "$1" && pwd)
    export FIREBIRD_LOCK=${FIREBIRD_LOCK:-$root/DataBase/.lock}
    mkdir -p "$FIREBIRD_LOCK"
}

quoted() { printf '%s' "${1//\'/\'\'}"; }

sql() { isql-fb -quiet -bail -charset UTF8 -user "$user" -password "$password" "$1"; }

# rows_of DATABASE QUERY: the first column of the rows, which the query marks with "=".
rows_of() { printf 'set heading off;\n%s;\n' "$2" | sql "$1" | sed -n 's/^=\(.*[^ ]\) *$/\1/p'; }

# find_databases: sets `names`, the databases that this installation has by their schema folders, the
# station's own first, and `places`, where each lies: a path or "host:path". The registry names the
# shared ones: below the root as C:\KALDO\..., or anywhere.
find_databases() {
    local name ruta
    names=()
    declare -gA places=(
        [local]=$root/DataBase/BD_LOCAL.GDB
        [clinic]=$root/DataBase/BD_ODONTOLOGIA.GDB
        [finance]=$root/DataBase/BD_FINANZAS.GDB
        [students]=$root/DataBase/BD_ESCOLARES.GDB
        [legacy]=$root/DataBase/BD_ANTERIOR.GDB)
    while IFS='>' read -r name ruta; do
        case $name in Odontologia) name=clinic ;; Finanzas) name=finance ;; *) continue ;; esac
        case $ruta in
            [Cc]:\\KALDO\\*) ruta=${ruta#?:\\KALDO\\}; ruta=$root/${ruta//\\//} ;;
            *:* | /*) ;;
            *) ruta=$root/$ruta ;;
        esac
        places[$name]=$ruta
    done < <(rows_of "${places[local]}" "select '=' || base || '>' || ruta from firebird")
    for name in local clinic finance students legacy; do
        case ${places[$name]} in
            /*) [ -e "${places[$name]}" ] || continue ;;
        esac
        names+=("$name")
    done
}

# steps_of NAME: the files of its steps, in their order.
steps_of() {
    [ ! -d "$schema/$1/steps" ] || find "$schema/$1/steps" -name '[0-9][0-9][0-9]_*.sql' | sort
}

# number_of STEP: 2 for ".../002_what.sql".
number_of() {
    local digits=${1##*/}
    echo $((10#${digits:0:3}))
}

# version_of_scripts NAME: the schema version that a new database of that name has.
version_of_scripts() {
    local last
    last=$(steps_of "$1" | tail -n 1)
    if [ -n "$last" ]; then number_of "$last"; else echo 1; fi
}

# version_table N: the table by which a database knows its schema version, as a script.
version_table() {
    cat <<SQL
create table esquema (
    version integer not null,
    momento timestamp default current_timestamp not null,
    constraint pk_esquema primary key (version)
);
commit;
insert into esquema (version) values ($1);
commit;
SQL
}

# version_of DATABASE: its schema version; 0 for one that knows none.
version_of() {
    sql "$1" <<'SQL' | sed -n 's/^=\([0-9]*\) *$/\1/p'
set heading off;
set term ^ ;
execute block returns (version varchar(12))
as
begin
    version = '=0';
    if (exists (select 1 from rdb$relations r where r.rdb$relation_name = 'ESQUEMA')) then
        execute statement 'select ''='' || coalesce(max(version), 0) from esquema' into :version;
    suspend;
end^
SQL
}

# set_statistics DATABASE: how selective the indices are, from the rows that are there. A table of
# few rows keeps the statistics of the made-up ones: the real ones would make its indices look
# useless on the day when it has grown.
set_statistics() {
    sql "$1" <<'SQL'
set term ^ ;
execute block
as
    declare tabla varchar(63);
    declare indice varchar(63);
    declare filas integer;
begin
    for select trim(r.rdb$relation_name)
          from rdb$relations r
         where r.rdb$system_flag = 0
           and r.rdb$view_blr is null
          into :tabla
    do
    begin
        execute statement 'select count(*) from (select first 1000 1 as fila from '
                          || tabla || ')' into :filas;
        if (filas >= 1000) then
            for select trim(i.rdb$index_name)
                  from rdb$indices i
                 where i.rdb$relation_name = :tabla
                   and coalesce(i.rdb$index_inactive, 0) = 0
                  into :indice
            do
                execute statement 'set statistics index ' || indice;
    end
end^
set term ; ^
commit;
SQL
}

# tables_and_rows LOG: tables with rows, from what gbak tells of a backup or a restoration.
tables_and_rows() {
    awk '/data for table /{table = $NF}
         / records (written|restored)/{sub(/^gbak: */, ""); if ($1 > 0) print table, $1}' "$1" | sort
}

# back_up DATABASE FILE: a backup, while stations work, that was restored into a scratch file,
# whose pages are sound and whose tables have as many rows as were written. FILE appears only then.
back_up() {
    local base=$1 file=$2 work fault=
    work=$(mktemp -d "$(dirname "$file")/.verifying-XXXXXX")
    if ! gbak -b -v -y "$work/written" -user "$user" -password "$password" "$base" "$work/backup"; then
        fault="the backup failed"
    elif ! gbak -c -v -y "$work/restored" -user "$user" -password "$password" "$work/backup" \
        "$work/scratch.gdb"; then
        fault="the backup can't be restored"
    elif [ -n "$(gfix -v -full -user "$user" -password "$password" "$work/scratch.gdb" 2>&1)" ]; then
        fault="the restored database isn't sound"
    elif ! diff <(tables_and_rows "$work/written") <(tables_and_rows "$work/restored") >&2; then
        fault="the restored database has other rows"
    fi
    if [ -n "$fault" ]; then
        tail -n 5 "$work/written" "$work/restored" >&2 2> /dev/null || true
        rm -rf "$work"
        echo "$base: $fault" >&2
        return 1
    fi
    rows_backed_up=$(tables_and_rows "$work/written" | awk '{rows += $2} END {print rows + 0}')
    sync "$work/backup" 2> /dev/null || true
    mv -n "$work/backup" "$file"
    rm -rf "$work"
}
