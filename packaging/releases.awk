# Makes of CHANGELOG.md the changelog of the Debian package (-v form=debian) or the releases of the metainfo
# (-v form=metainfo). A release is a heading "## version (day)" and a list.
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
        ("LC_ALL=C date -u -R -d '" day " 12:00 UTC'") | getline signed
        print "\n -- Zolmark developers <developers@zolmark.example>  " signed "\n"
    }
}
/^## / {
    end_release()
    version = $2
    day = substr($3, 2, length($3) - 2)
    if (form == "metainfo") {
        print "    <release version=\"" version "\" date=\"" day "\">\n      <description>\n        <ul>"
    } else {
        print "zolmark (" version ") unstable; urgency=medium\n"
    }
    next
}
version != "" && NF {
    starts = /^- /
    text = substr($0, 3)
    if (form == "debian") {
        print (starts ? "  * " : "    ") text
    } else {
        gsub(/&/, "\\&amp;", text)
        gsub(/</, "\\&lt;", text)
        if (starts) end_item()
        item = item (item == "" ? "" : " ") text
    }
}
END { end_release() }
