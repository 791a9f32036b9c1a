# Debian packages that the project stands on, and their installation. Sourced by ./run, ./test and bench/run.

build_packages=(
    ca-certificates ccache cmake g++ ninja-build pkg-config
    libdbus-1-dev libfluidsynth-dev libpulse-dev libreaderwriterqueue-dev libsamplerate0-dev libsndfile1-dev qt6-base-dev
    fluid-soundfont-gm fonts-dejavu-core wamerican
)
test_packages=(
    clang-format clang-tidy-19 git googletest libgmock-dev libgtest-dev procps
    chromium chromium-driver poppler-utils sox
    dbus pipewire pipewire-pulse polkitd pulseaudio pulseaudio-utils rtkit wireplumber
)
bench_packages=(
    cmt ecasound googletest libgmock-dev libgtest-dev sox
    dbus pipewire pipewire-pulse pulseaudio pulseaudio-utils wireplumber x11-utils xauth xvfb
)

# install_packages NAME...: installs those that are missing and says so; asks for nothing where all are there.
install_packages() {
    local missing=() name as_root=()
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing Debian packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
