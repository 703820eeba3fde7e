#!/bin/bash
# Makes the pages of the help: each chapter in one frame with the list of all, and the chapter of
# properties from the default files; and the notes on each key as plain text, for the program.
#
#   tools/help/make_help.sh FOLDER-OF-DEFAULT-FILES PICTURE FOLDER
#
# FOLDER becomes the folder "Help" of the program. Only its pages are replaced.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
defaults=$1 picture=$2 out=$3

# Escape TEXT: as it stands in a page.
Escape() { sed -e 's/&/\&amp;/g' -e 's/</\&lt;/g' -e 's/>/\&gt;/g' <<<"$1"; }

# Contents PAGE: the list of all chapters, with PAGE marked.
Contents() {
    local path title mark
    echo '<nav aria-label="Chapters"><ul>'
    while IFS='|' read -r path title; do
        [[ "$path" == "$1" ]] && mark=' aria-current="page"' || mark=
        echo "<li><a href=\"../$path\"$mark>$(Escape "$title")</a></li>"
    done <"$here/contents.txt"
    echo '</ul></nav>'
}

# Neighbours PAGE: links to the chapters before and behind it.
Neighbours() {
    awk -F'|' -v page="$1" '
        { path[NR] = $1; title[NR] = $2; if ($1 == page) here = NR }
        END {
            print "<p class=\"neighbours\">"
            if (here > 1)
                printf "<a rel=\"prev\" href=\"../%s\">← %s</a>\n", path[here - 1], title[here - 1]
            if (here < NR)
                printf "<a rel=\"next\" href=\"../%s\">%s →</a>\n", path[here + 1], title[here + 1]
            print "</p>"
        }' "$here/contents.txt"
}

# The chapters of properties, one table for each category of each default file.
Properties() {
    cat "$here/chapters/common/properties.html"
    for name in TempolarkCentral Tempolark; do
        awk -v file="$name" -f "$here/properties.awk" "$here/notes/$name.txt" "$defaults/$name.ini"
    done
}

# Body PAGE: what the chapter itself says.
Body() {
    if [[ "$1" == common/properties.html ]]; then
        Properties
    else
        cat "$here/chapters/$1"
    fi
}

# Keys: a line for each note, "Tempolark:Clocks=What the clock shows", without the marks of a page.
Keys() {
    for name in TempolarkCentral Tempolark; do
        sed -e 's/<[^>]*>//g' -e 's/&lt;/</g' -e 's/&gt;/>/g' -e 's/&amp;/\&/g' \
            -e "s/^/$name:/" "$here/notes/$name.txt"
    done
}

# Page PATH TITLE: the whole page.
Page() {
    local path=$1 title
    title=$(Escape "$2")
    cat <<END
<!DOCTYPE html>
<html lang="en-GB">
<head>
<meta charset="utf-8"/>
<meta name="viewport" content="width=device-width, initial-scale=1"/>
<meta name="color-scheme" content="light dark"/>
<title>$title – Tempolark help</title>
<link rel="stylesheet" href="../common/help.css"/>
</head>
<body>
$(Contents "$path")
<main>
<h1>$title</h1>
$(Body "$path")
$(Neighbours "$path")
</main>
</body>
</html>
END
}

mkdir -p "$out"/{TempolarkCentral,Tempolark,common}
rm -f "$out"/{TempolarkCentral,Tempolark,common}/*.html
cp "$here/help.css" "$out/common/help.css"
cp "$picture" "$out/common/clocks.jpg"
while IFS='|' read -r path title; do
    Page "$path" "$title" >"$out/$path"
done <"$here/contents.txt"
Keys >"$out/keys.txt"
# Each help file has its own way in.
cp "$out/TempolarkCentral/index.html" "$out/Tempolark/index.html"
