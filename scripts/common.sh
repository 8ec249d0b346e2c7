# Functions of the scripts: packages, the build, a virtual screen.
#
# BUILD_DIR names the build directory of the release preset. Other presets build beside it: asan in
# $BUILD_DIR-asan.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build_packages="g++ cmake ninja-build pkg-config libglfw3-dev libx11-dev libgl-dev libglu1-mesa-dev libgl1 libgl1-mesa-dri libjpeg-dev libpng-dev"
screen_packages="xvfb xdotool imagemagick"
test_packages="libgtest-dev zlib1g-dev libbenchmark-dev python3 openbox x11-utils $screen_packages"
# The tests of the installation need checkers, an SVG renderer and the shells with completions.
test_packages="$test_packages lintian desktop-file-utils appstream librsvg2-bin bash-completion zsh fish"
fuzz_packages="clang libclang-rt-dev libgtest-dev zlib1g-dev"
check_packages="clang clang-format clang-tidy librsvg2-bin imagemagick"

say() { printf '==> %s\n' "$*"; }

fail() {
    say "$@" >&2
    exit 1
}

build_dir=${BUILD_DIR:-$root/build}
case $build_dir in /*) ;; *) build_dir=$PWD/$build_dir ;; esac
mkdir -p "$build_dir" 2>/dev/null && [ -w "$build_dir" ] ||
    fail "can't write to $build_dir: set BUILD_DIR to a directory for the build"

# logged <file> <command...>: Runs a command with its output in $build_dir/<file>. If the command
# fails, prints the end of the output and the path of the file.
logged() {
    local log=$build_dir/$1
    shift
    if ! "$@" >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        say "failed: ${*##*/}" >&2
        say "its output is in $log" >&2
        return 1
    fi
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ] ||
        dpkg-query -W -f '${Provides}\n' 2>/dev/null | grep -qw -- "$1"
}

install_packages() {
    local become=
    [ "$(id -u)" = 0 ] || become=sudo
    $become apt-get update -qq
    $become env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@"
}

# Installs the named Debian packages that are missing, as root or with sudo. On other systems,
# prints their names.
need_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        [ -e "$build_dir/CMakeCache.txt" ] ||
            say "not a Debian system: install the programs and libraries of these Debian packages: $*"
        return 0
    fi
    local package missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        fail "missing packages, to be installed as root: apt-get install ${missing[*]}"
    fi
    say "installing ${missing[*]}"
    logged packages.log install_packages "${missing[@]}" ||
        fail "missing packages: ${missing[*]}"
}

# preset_dir <preset>: Prints the build directory of a preset.
preset_dir() {
    case $1 in release) echo "$build_dir" ;; *) echo "$build_dir-$1" ;; esac
}

# configure <preset>: A warning is an error if $warnings_as_errors is ON, and as before if it is not
# set.
configure() (
    cd "$root" && cmake --preset "$1" -B "$(preset_dir "$1")" --log-level=WARNING \
        ${warnings_as_errors:+"-DCMAKE_COMPILE_WARNING_AS_ERROR=$warnings_as_errors"}
)

# build <preset> [target...]
build() {
    local preset=$1
    shift
    say "building the $preset preset"
    configure "$preset"
    cmake --build "$(preset_dir "$preset")" ${1:+--target "$@"}
}

# Prints the display of this user's running Xwayland, and the file with its key if it has one.
xwayland() {
    local process words word last display key
    for process in /proc/[0-9]*; do
        [ -O "$process" ] && mapfile -d '' -t words 2>/dev/null <"$process/cmdline" || continue
        [[ "${words[*]:0:1}" =~ (^|/)Xwayland$ ]] || continue
        last='' display='' key=''
        for word in "${words[@]}"; do
            case $word in :[0-9]*) display=$word ;; esac
            [ "$last" != -auth ] || key=$word
            last=$word
        done
        [ -z "$display" ] || { echo "$display $key" && return; }
    done
    return 1
}

# Succeeds if GLFW can draw on a Wayland compositor: since 3.4, or in a variant of Debian's.
glfw_knows_wayland() {
    pkg-config --atleast-version=3.4 glfw3 2>/dev/null || is_installed libglfw3-wayland
}

# Succeeds if there is a screen for GLFW. Selects Xwayland if GLFW needs it.
have_screen() {
    [ -z "${DISPLAY:-}" ] || return 0
    [ -n "${WAYLAND_DISPLAY:-}" ] || return 1
    glfw_knows_wayland && return 0
    local found
    if found=$(xwayland); then
        export DISPLAY=${found%% *}
        [ -z "${found#* }" ] || export XAUTHORITY=${found#* }
        say "this GLFW needs X: using Xwayland on $DISPLAY"
        return 0
    fi
    say "this GLFW needs X, and WAYLAND_DISPLAY=$WAYLAND_DISPLAY is not an X display"
    return 1
}

# Starts a virtual screen and exports its DISPLAY. The screen ends with the script.
start_screen() {
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$number_file" 2>/dev/null &
    screen_pid=$!
    trap 'kill $screen_pid 2>/dev/null' EXIT
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.1
    done
    [ -s "$number_file" ] || fail "the virtual screen did not start"
    DISPLAY=:$(cat "$number_file")
    rm -f "$number_file"
    unset WAYLAND_DISPLAY
    # Mesa's software rasteriser makes mipmaps several times faster without worker threads.
    export DISPLAY LP_NUM_THREADS=0
    say "virtual screen on $DISPLAY"
}
