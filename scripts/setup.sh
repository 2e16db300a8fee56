#!/bin/sh
# Installs every Debian package that Evida needs to build, run and test.
# Idempotent: packages already present are skipped, and the package lists are
# refreshed only when something is missing. Works as root or through sudo.
set -eu

PACKAGES="build-essential cmake pkg-config git
libwxgtk3.2-dev libwxsqlite3-3.2-dev libcurl4-openssl-dev libqrcodegencpp-dev libcairo2-dev
libicu-dev libxml2-dev libxml2-utils
libgtest-dev libgmock-dev libbenchmark-dev wx3.2-i18n
libssl-dev openssl python3-aiosmtpd
xvfb xauth poppler-utils zbar-tools sqlite3 imagemagick python3 locales
dpkg-dev fakeroot file lintian desktop-file-utils appstream gettext"

missing=""
for p in $PACKAGES; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $p"
    fi
done

if [ "$(id -u)" -eq 0 ]; then
    SUDO=""
else
    SUDO="sudo"
fi

# Tests check that exports keep a decimal point under the Czech locale, so it must exist.
czech_locale() {
    if ! locale -a 2>/dev/null | grep -qi '^cs_CZ\.utf-\?8$'; then
        echo "setup: generating the cs_CZ.UTF-8 locale"
        $SUDO localedef -i cs_CZ -f UTF-8 cs_CZ.UTF-8
    fi
}

if [ -z "$missing" ]; then
    echo "setup: all packages present"
    czech_locale
    exit 0
fi

echo "setup: installing$missing"
$SUDO env DEBIAN_FRONTEND=noninteractive apt-get update -q
# shellcheck disable=SC2086
$SUDO env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
czech_locale
