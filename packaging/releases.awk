# Converts CHANGELOG.md to the changelog of the Debian package (-v form=debian) or to the releases of the
# metainfo (-v form=metainfo). A release is a heading "## version (date)" and a list.
function end_item() {
    if (form == "metainfo" && item != "") print "          <li>" item "</li>"
    item = ""
}
function end_release() {
    if (version == "") return
    end_item()
    if (form == "metainfo") {
        print "        </ul>\n      </description>\n    </release>"
    } else {
        ("LC_ALL=C date -u -R -d '" date " 12:00 UTC'") | getline timestamp
        print "\n -- Zolmark developers <developers@zolmark.example>  " timestamp "\n"
    }
}
/^## / {
    end_release()
    version = $2
    date = substr($3, 2, length($3) - 2)
    if (form == "metainfo") {
        print "    <release version=\"" version "\" date=\"" date "\">\n      <description>\n        <ul>"
    } else {
        print "zolmark (" version ") unstable; urgency=medium\n"
    }
    next
}
version != "" && NF {
    is_item_start = /^- /
    text = substr($0, 3)
    if (form == "debian") {
        print (is_item_start ? "  * " : "    ") text
    } else {
        gsub(/&/, "\\&amp;", text)
        gsub(/</, "\\&lt;", text)
        if (is_item_start) end_item()
        item = item (item == "" ? "" : " ") text
    }
}
END { end_release() }
