# What the scripts share: packages, the build, a virtual screen.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build_packages="g++ cmake ninja-build pkg-config libglfw3-dev libx11-dev libgl-dev libglu1-mesa-dev libgl1 libgl1-mesa-dri libjpeg-dev libpng-dev"
screen_packages="xvfb xdotool imagemagick"
test_packages="libgtest-dev zlib1g-dev libbenchmark-dev python3 openbox x11-utils $screen_packages"
# What the tests of the installation need: checkers, an SVG renderer, the shells with completions.
test_packages="$test_packages lintian desktop-file-utils appstream librsvg2-bin bash-completion zsh fish"
fuzz_packages="clang libclang-rt-dev libgtest-dev zlib1g-dev"

say() { printf '==> %s\n' "$*"; }

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ] ||
        dpkg-query -W -f '${Provides}\n' 2>/dev/null | grep -qw -- "$1"
}

# Installs those of the named Debian packages that are missing; elsewhere names what has to be there.
need_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        say "not a Debian system: make sure that what these packages hold is installed: $*"
        return 0
    fi
    local missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    say "installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# build <preset> [target...]
build() {
    local preset=$1
    shift
    say "building the $preset preset"
    (cd "$root" && cmake --preset "$preset" --log-level=WARNING &&
        cmake --build --preset "$preset" -- ${1:+"$@"})
}

# Starts a virtual screen when there is no screen (or always, with "always"), and exports what
# programs need to find it. It goes away with the script.
start_screen() {
    if [ "${1:-}" != always ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then return 0; fi
    local number_file
    number_file=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$number_file" 2>/dev/null &
    screen_pid=$!
    trap 'kill $screen_pid 2>/dev/null' EXIT
    for _ in $(seq 100); do
        [ -s "$number_file" ] && break
        sleep 0.1
    done
    [ -s "$number_file" ] || { say "the virtual screen did not start"; return 1; }
    DISPLAY=:$(cat "$number_file")
    rm -f "$number_file"
    unset WAYLAND_DISPLAY
    # Mesa's software rasteriser makes mipmaps several times faster without worker threads.
    export DISPLAY LP_NUM_THREADS=0
    say "virtual screen on $DISPLAY"
}
