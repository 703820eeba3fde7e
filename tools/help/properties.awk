# Makes the tables of a default file's properties.
#
#   awk -v file=Tempolark -f properties.awk NOTES DEFAULTS
#
# A line of NOTES is "Name=what it does", as a piece of a page. DEFAULTS is a property file: lines
# of "Category:Name=value,choice,choice".

function escape(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    gsub(/>/, "\\&gt;", text)
    return text
}

# The anchor of a key: "clock-hour-hand-length".
function anchor(name) {
    name = tolower(name)
    gsub(/[^a-z0-9]+/, "-", name)
    sub(/-$/, "", name)
    return (file == "Tempolark" ? "clock-" : "shell-") name
}

# A colour that is given as a number: red + 256 x green + 65536 x blue.
function swatch(name, value) {
    if (name !~ /Colour$/ || value !~ /^[0-9]+$/) return ""
    return sprintf("<span class=\"swatch\" style=\"background:rgb(%d,%d,%d)\"></span>",
                   value % 256, int(value / 256) % 256, int(value / 65536) % 256)
}

function closeTable() {
    if (category != "") print "</tbody></table></div>"
}

function openTable(name) {
    closeTable()
    category = name
    print "<h3>" escape(name) "</h3>"
    print "<div class=\"wide\"><table class=\"properties\">"
    print "<thead><tr><th scope=\"col\">Property</th><th scope=\"col\">Default</th>" \
          "<th scope=\"col\">Choices</th></tr></thead><tbody>"
}

{ sub(/\r$/, "") }

FNR == NR {
    cut = index($0, "=")
    if (cut) note[substr($0, 1, cut - 1)] = substr($0, cut + 1)
    next
}

FNR == 1 {
    print file == "Tempolark" ? "<h2 id=\"clock\">A clock</h2>" : "<h2 id=\"shell\">The shell</h2>"
    print "<p>The default file is <code>ini/" file ".ini</code>.</p>"
}

index($0, "=") {
    cut = index($0, "=")
    key = substr($0, 1, cut - 1)
    value = substr($0, cut + 1)
    sub(/^\^/, "", value)
    colon = index(key, ":")
    name = substr(key, colon + 1)
    comma = index(value, ",")
    current = comma ? substr(value, 1, comma - 1) : value
    choices = comma ? substr(value, comma + 1) : ""
    if (substr(key, 1, colon - 1) != category) openTable(substr(key, 1, colon - 1))

    gsub(/,/, ", ", choices)
    printf "<tr id=\"%s\"><th scope=\"rowgroup\">%s</th><td>%s<code>%s</code></td><td>%s</td></tr>\n",
        anchor(name), escape(name), swatch(name, current),
        current == "" ? "(empty)" : escape(current), choices == "" ? "any" : escape(choices)
    printf "<tr class=\"note\"><td colspan=\"3\">%s</td></tr>\n", note[name]
}

END { closeTable() }
