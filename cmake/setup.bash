# What `run` and `test` share: the packages, the configuration, the build. Everything it says goes to standard error.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")

say() { printf '%s\n' "$*" >&2; }

# Packages of the lists in cmake/debian that are not installed, one per line. Arguments: names of lists.
missing_packages() {
    local wanted
    mapfile -t wanted < <(cd "$root/cmake/debian" && sed -e 's/[[:space:]]*#.*//' -e '/^$/d' "${@/%/.txt}" | sort -u)
    # Packages that were never heard of are missing in the answer, so what is installed is taken away from the list.
    comm -23 <(printf '%s\n' "${wanted[@]}") \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null \
            | sed -n 's/^installed //p' | sort -u)
}

as_root() {
    if ((EUID == 0)); then "$@"; else sudo "$@"; fi
}

# Installs what is missing of the named lists.
install_packages() {
    command -v dpkg-query >/dev/null || return 0 # not Debian: CMake names what it does not find
    local missing log="$root/build/packages.log"
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0

    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        say "Tamble needs packages that only an administrator can install. As root, run:"
        say "    apt-get install --no-install-recommends ${missing[*]}"
        return 1
    fi
    say "Installing from Debian$( ((EUID == 0)) || echo " (with sudo)"): ${missing[*]}"
    local install=(as_root env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300)
    : >"$log"
    # Package lists that are missing or out of date make the first attempt fail; a passing fault the second.
    for attempt in 1 2 3; do
        if ((attempt > 1)); then
            "${install[@]}" update </dev/null >>"$log" 2>&1 || sleep 3
        fi
        "${install[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >>"$log" 2>&1 && return 0
    done
    tail -n 20 "$log" >&2
    say "The packages could not be installed; the whole log is in $log"
    return 1
}

# ccache fails every compilation when it cannot write its folder.
check_ccache() {
    local folder="${CCACHE_DIR:-${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}/ccache}"
    mkdir -p "$folder" 2>/dev/null
    [[ -w $folder ]] || export CCACHE_DISABLE=1
}

configure() {
    local preset=$1 log="$root/build/configure.log"
    [[ -f $root/build/$preset/build.ninja ]] && return 0
    (cd "$root" && cmake --preset "$preset") </dev/null >"$log" 2>&1 && return 0
    cat "$log" >&2
    say "Tamble could not be configured; what CMake said is above."
    return 1
}

# As many compilers as there are cores, and a GiB of free memory for each.
build_jobs() {
    local cores memory
    cores=$(nproc)
    memory=$(awk '/^MemAvailable:/ { print int($2 / 1048576) }' /proc/meminfo)
    echo $((memory < 1 ? 1 : memory < cores ? memory : cores))
}

# Builds targets of a preset: build PRESET [TARGET…]. A terminal sees the steps counted in one line.
build() {
    local preset=$1 log="$root/build/build.log" line started=
    shift
    check_ccache
    nice ninja -C "$root/build/$preset" -j "$(build_jobs)" "$@" </dev/null 2>&1 | tee "$log" | while IFS= read -r line; do
        [[ $line == '['[1-9]*/*']'* ]] || continue # 0 is looking for new files
        [[ $started ]] || say "Building Tamble in build/$preset"
        started=yes
        [[ ! -t 2 ]] || printf '\r%s\e[K' "${line%%]*}]" >&2
    done
    local status=${PIPESTATUS[0]}
    [[ ! -t 2 ]] || printf '\r\e[K' >&2
    if ((status != 0)); then
        grep -v -E '^(\[[0-9]+/[0-9]+\] |ninja: Entering)' "$log" >&2
        say "Tamble could not be built; what the compiler said is above."
        return 1
    fi
}

# One set-up at a time in one folder: a second waits for the first.
lock_setup() {
    mkdir -p "$root/build"
    exec {setup_lock}>"$root/build/.lock"
    flock "$setup_lock"
}
unlock_setup() { exec {setup_lock}>&-; }
