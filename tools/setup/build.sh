# Configuring and building one preset. Sourced by ./run, ./test and bench/run.

export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
export CCACHE_BASEDIR=$PWD

# build_preset NAME [OPTION...]: configures where the presets are newer than what was configured, then builds what is out
# of date; options are the build's, such as --target.
build_preset() {
    local preset=$1
    shift
    [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset" -Wno-dev
    cmake --build --preset "$preset" "$@"
}
