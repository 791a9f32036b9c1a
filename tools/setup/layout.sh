# The program folder: the executable and its data folders. Sourced by ./run and the tour's callers.
#
# A file that we shipped is replaced by a newer one only while it is still as we shipped it; the list of checksums in
# .shipped remembers that. What a person made or changed is never touched.

data_folders=(
    songs projects tracks/Version1 songTemplate playlists database support DemoCD DemoCD_Example templates/cdRedPlayer
)

checksum() { sha256sum "$1" | cut -d ' ' -f 1; }

# ship SOURCE FOLDER NAME: puts one file of ours at FOLDER/NAME.
ship() {
    local source=$1 folder=$2 name=$3 target="$2/$3" is_now was_shipped
    if [ -e "$target" ]; then
        is_now=$(checksum "$target")
        was_shipped=$(grep -F "  $name" "$folder/.shipped" 2>/dev/null | tail -n 1 | cut -d ' ' -f 1) || true
        [ "$is_now" = "$(checksum "$source")" ] && return 0
        [ "$is_now" = "$was_shipped" ] || return 0
    fi
    mkdir -p "$(dirname "$target")"
    cp "$source" "$target.new"
    mv "$target.new" "$target"
    echo "$(checksum "$source")  $name" >>"$folder/.shipped"
}

# lay_out BUILD FOLDER: brings FOLDER up to date with the build in BUILD.
lay_out() {
    local build=$1 folder=$2 name tree
    for name in "${data_folders[@]}"; do mkdir -p "$folder/$name"; done
    if ! cmp -s "$build/bin/lyrebrook" "$folder/lyrebrook"; then
        cp "$build/bin/lyrebrook" "$folder/lyrebrook.new"
        mv "$folder/lyrebrook.new" "$folder/lyrebrook"
    fi
    for tree in data "$build/data"; do
        while IFS= read -r name; do
            ship "$tree/$name" "$folder" "$name"
        done < <(cd "$tree" && find . -type f -printf '%P\n')
        while IFS= read -r name; do
            [ -e "$folder/$name" ] || [ -L "$folder/$name" ] || cp -P "$tree/$name" "$folder/$name"
        done < <(cd "$tree" && find . -type l -printf '%P\n')
    done
}
