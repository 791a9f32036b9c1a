#!/usr/bin/env bash
# Arrows only point down: which folder may include which other, and which library headers it may name.
# A row: folder | project folders that it may include, besides itself | library headers that it may include.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

logic='shell|projects|backtrack|recorder|lyrics|dictionary|mixer|democd'
rules() {
    cat <<'ROWS'
platform/base     |                                                                    |
platform/sound    | platform/base                                                      | pulse readerwriterqueue samplerate sndfile
platform/files    | platform/base                                                      | Qt
platform/system   | platform/base                                                      | Qt
platform/music    | platform/base platform/sound                                       | Qt fluidsynth
platform/winmm    | platform/base platform/sound                                       | Qt
platform/directx  | platform/base platform/sound platform/music                        | Qt
platform/printing | platform/base platform/files                                       | Qt
platform/forms    | platform/base platform/files platform/printing                     | Qt
platform/help     | platform/base platform/files platform/forms                        | Qt
ROWS
}
library() {  # the library that a system header belongs to, or nothing for the standard's and the system's own
    case $1 in
        Q*) echo Qt ;;
        pulse/*) echo pulse ;;
        fluidsynth*) echo fluidsynth ;;
        sndfile*) echo sndfile ;;
        samplerate*) echo samplerate ;;
        readerwriterqueue/*) echo readerwriterqueue ;;
    esac
}
widgets='Q(Widget|Application|MainWindow|Dialog|MessageBox|PushButton|Label|LineEdit|Slider|Painter|Printer)'

broken=0
complain() { echo "$1"; broken=1; }

while IFS='|' read -r folder others libraries; do
    folder=${folder// /}
    while IFS=: read -r file header; do
        case $header in
            \"*) header=${header//\"/}
                 into=$(dirname "$header")
                 [ "$into" = "$folder" ] || [[ $into == "$folder"/* ]] || [[ " $others " == *" $into "* ]] ||
                     complain "$file includes $header: $folder may not know $into" ;;
            \<*) name=$(library "${header//[<>]/}")
                 [ -z "$name" ] || [[ " $libraries " == *" $name "* ]] ||
                     complain "$file includes $header: $folder may not know $name" ;;
        esac
    done < <(grep -rnoE '^#include [<"][^>"]*[>"]' "src/$folder" --include='*.h' --include='*.cpp' | sed -E 's/:[0-9]+:#include /:/')
done < <(rules)

# Rules of the product know no widget, no form and no library of sound; what the build names as screens does.
screens=$(sed -n '/^target_sources(screens/,/)/p' src/*/CMakeLists.txt | grep -oE '[A-Za-z]+\.cpp' | sed 's/\.cpp$//')
while IFS=: read -r file header; do
    name=$(basename "${file%.*}")
    grep -qx "$name" <<<"$screens" && continue
    case $name in Frm* | frm*) continue ;; esac
    complain "$file includes $header: logic knows no widget, no form and no device"
done < <(grep -rnoE "^#include (<$widgets>|<(pulse|fluidsynth|sndfile)[^>]*>|\"platform/forms/[^\"]*\"|\"([a-z]+/)?[Ff]rm[^\"]*\")" \
    $(for name in ${logic//|/ }; do [ -d "src/$name" ] && echo "src/$name"; done) | sed -E 's/:[0-9]+:#include /:/')

exit "$broken"
