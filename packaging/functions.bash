# What the project's commands share. Sourced by a script that stands in the project's folder and has set `program`.
# Messages go to standard error, so that standard output holds only what was asked for.

export LC_ALL=C.UTF-8
shopt -s extglob

say() { printf '%s: %s\n' "$program" "$*" >&2; }

fail()
{
    say "$@"
    exit 1
}

refuse() # what is wrong with the command line
{
    say "$* (see $program --help)"
    exit 2
}

need_packages() # SET...
{
    packaging/setup "$@" || exit 1
}

# Prints the output of a command only when it fails.
run_quietly() # COMMAND...
{
    local output
    if ! output=$("$@" 2>&1 </dev/null); then
        printf '%s\n' "$output" >&2
        fail "failed: $*"
    fi
}

is_configured() # PRESET
{
    local folder=build/$1
    [[ -f $folder/build.ninja && ! CMakePresets.json -nt $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"
}

# Later changes of CMake files are ninja's business; a changed preset or a moved checkout starts afresh.
configure() # PRESET
{
    if ! is_configured "$1"; then
        say "configuring build/$1"
        run_quietly cmake --preset "$1" --fresh
    fi
}

# Passes on what ninja says, once it has something to do; on a terminal its steps share one line, as when it runs alone.
show_progress() # FOLDER
{
    local line silent=yes step=
    while IFS= read -r line; do
        case $line in
        'ninja: Entering directory '* | *'] Re-checking globbed directories...' | 'ninja: no work to do.') continue ;;
        esac
        if [[ -n $silent ]]; then
            say "building $1"
            silent=
        fi
        if [[ -t 2 && $line == \[+([0-9])/* ]]; then
            printf '\r\e[K%s' "${line:0:$((${COLUMNS:-80} - 1))}" >&2
            step=yes
        else
            printf '%s%s\n' "${step:+$'\n'}" "$line" >&2
            step=
        fi
    done
    printf '%s' "${step:+$'\n'}" >&2
}

build() # PRESET TARGET...
{
    local folder=build/$1
    shift
    ninja -C "$folder" -j "$(nproc)" "$@" 2>&1 | show_progress "$folder" || fail "the build in $folder failed"
}
