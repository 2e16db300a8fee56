#!/bin/sh
# Checks a built Debian package (scripts/package.sh) as a distribution would:
#   lintian reports no errors, the desktop entry and AppStream data validate, the files
#   land where desktops and man look for them, and the programs run from the unpacked
#   tree and find their help book, schemas and catalogue there (not in the source tree).
# Usage: tests/package/check_package.sh [dist/evida_<version>_amd64.deb]
set -eu
cd "$(dirname "$0")/../.."
version=$(sed -n 's/^project(evida VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
deb=${1:-dist/evida_${version}_amd64.deb}
[ -f "$deb" ] || { echo "Balíček $deb neexistuje: nejdřív scripts/package.sh" >&2; exit 1; }

failures=0
fail() { echo "CHYBA: $*" >&2; failures=$((failures + 1)); }
ok() { echo "ok: $*"; }

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# --- control data -----------------------------------------------------------------------
field() { dpkg-deb --field "$deb" "$1"; }
[ "$(field Package)" = evida ] && ok "Package: evida" || fail "Package je $(field Package)"
[ "$(field Version)" = "$version" ] && ok "Version: $version" || fail "Version je $(field Version), čekáno $version"
[ "$(field Architecture)" = amd64 ] && ok "Architecture: amd64" || fail "Architecture je $(field Architecture)"
depends=$(field Depends)
case "$depends" in
    *libwxgtk3.2*) ok "Depends obsahuje wxWidgets" ;;
    *) fail "Depends bez knihovny wxWidgets: $depends" ;;
esac
case "$depends" in
    *-dev*) fail "Depends obsahuje vývojový balíček: $depends" ;;
    *) ok "Depends bez balíčků -dev" ;;
esac

# --- lintian: no errors (warnings are listed, not fatal) ----------------------------------
lintian --tag-display-limit 0 "$deb" >"$tmp/lintian.txt" 2>&1 || true
cat "$tmp/lintian.txt"
if grep -q '^E:' "$tmp/lintian.txt"; then fail "lintian hlásí chyby"; else ok "lintian bez chyb"; fi

# --- the unpacked tree --------------------------------------------------------------------
root="$tmp/root"
dpkg-deb -x "$deb" "$root"
for path in usr/bin/evida usr/bin/evida-cli \
            usr/share/applications/evida.desktop \
            usr/share/metainfo/io.github.evida.Evida.metainfo.xml \
            usr/share/man/man1/evida-cli.1.gz usr/share/man/man1/evida.1.gz \
            usr/share/doc/evida/copyright usr/share/doc/evida/changelog.gz \
            usr/share/evida/help/evida.hhp usr/share/evida/help/evida.hhc usr/share/evida/help/evida.hhk \
            usr/share/evida/xsd/dphdp3_epo2.xsd usr/share/evida/xsd/dphkh1_epo2.xsd usr/share/evida/xsd/dphshv_epo2.xsd \
            usr/share/evida/locale/cs/LC_MESSAGES/evida.mo usr/share/evida/evida.png; do
    [ -f "$root/$path" ] && ok "/$path" || fail "chybí /$path"
done
for size in 16 22 24 32 48 64 128 256; do
    icon="$root/usr/share/icons/hicolor/${size}x${size}/apps/evida.png"
    if [ -f "$icon" ] && file "$icon" | grep -q "PNG image data, $size x $size"; then
        ok "ikona ${size}x${size}"
    else
        fail "ikona ${size}x${size} chybí nebo má jiný rozměr"
    fi
done

desktop-file-validate "$root/usr/share/applications/evida.desktop" && ok "desktop-file-validate" ||
    fail "desktop-file-validate"
appstreamcli validate --no-net "$root/usr/share/metainfo/io.github.evida.Evida.metainfo.xml" &&
    ok "appstreamcli validate" || fail "appstreamcli validate"
grep -q "<release version=\"$version\"" "$root/usr/share/metainfo/io.github.evida.Evida.metainfo.xml" &&
    ok "AppStream release $version" || fail "AppStream nemá release $version"

# Every command of evida-cli's usage text is in its manual page.
zcat "$root/usr/share/man/man1/evida-cli.1.gz" >"$tmp/evida-cli.1"
MANWIDTH=200 man -l "$tmp/evida-cli.1" 2>/dev/null >"$tmp/evida-cli.txt"
"$root/usr/bin/evida-cli" >/dev/null 2>"$tmp/usage.txt" || true
commands=$(sed -n 's/^  \([a-z][a-z-]*\( dph[a-z0-9]*\)\?\) .*/\1/p' "$tmp/usage.txt" | sort -u)
[ -n "$commands" ] || fail "evida-cli nevypsal použití"
for c in $(echo "$commands" | tr ' ' '_'); do
    c=$(echo "$c" | tr '_' ' ')
    grep -q "^ *$c" "$tmp/evida-cli.txt" && ok "man evida-cli: $c" || fail "man evida-cli nepopisuje $c"
done

# --- the programs run from the unpacked tree ---------------------------------------------
export HOME="$tmp/home"
mkdir -p "$HOME"
out=$("$root/usr/bin/evida-cli" --version)
[ "$out" = "evida-cli $version" ] && ok "$out" || fail "evida-cli --version vypsal '$out'"
"$root/usr/bin/evida-cli" zdroje >"$tmp/zdroje.txt" || fail "evida-cli zdroje: něco nenalezeno"
cat "$tmp/zdroje.txt"
for what in "Nápověda: $root/usr/share/evida/help/evida.hhp" "Schémata: $root/usr/share/evida/xsd" \
            "Katalog: $root/usr/share/evida/locale/cs/LC_MESSAGES/evida.mo"; do
    grep -qxF "$what" "$tmp/zdroje.txt" && ok "$what" || fail "čekáno '$what'"
done
# A filing checked against the installed schema: the new company has no tax number, so the
# VAT return must be refused with the schema's own complaint (a schema that cannot be loaded
# gives "Nelze načíst schéma finanční správy" instead).
"$root/usr/bin/evida-cli" create "$tmp/firma.db" >/dev/null
year=$(date +%Y)
if "$root/usr/bin/evida-cli" export dphdp3 "$tmp/firma.db" --rok "$year" --mesic 1 >"$tmp/dp3.xml" 2>"$tmp/dp3.err"; then
    fail "přiznání firmy bez DIČ prošlo schématem"
elif grep -q "Věta VetaP, údaj dic: chybí povinný údaj" "$tmp/dp3.err"; then
    ok "přiznání ověřeno schématem z balíčku"
else
    cat "$tmp/dp3.err" >&2
    fail "schéma podání se nenačetlo"
fi

if [ "$failures" -ne 0 ]; then
    echo "$failures chyb" >&2
    exit 1
fi
echo "Balíček $deb je v pořádku."
