# Configuring and building one preset. Sourced by ./run and ./test.

export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
export CCACHE_BASEDIR=$PWD

# build_preset NAME: configures where that was never done, then builds what is out of date.
build_preset() {
    [ -f "build/$1/build.ninja" ] || cmake --preset "$1" -Wno-dev
    cmake --build --preset "$1"
}
