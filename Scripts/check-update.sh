#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Proves the whole way of an update: makes two releases of this commit, installs the first on a fresh Debian 12, lets it
# find, fetch and install the second from a server there, and starts that. And it proves what is refused: a package that
# others signed, an old one that is offered as new, a changed byte, a server without encryption; and that a proxy is
# used. Needs Docker or Podman, or root and debootstrap; without them it says so and ends with status 77.
set -euo pipefail
. "$(dirname "$0")/fresh-debian.sh"
host=updates.roamlet.test
port=8443
first=0.1.0
second=0.1.1

on_fresh_system() {
  prepare_fresh_debian
  step "Install $first and what a desktop has"
  apt-get install -q -y --no-install-recommends /check/first.deb ca-certificates packagekit polkitd dbus dbus-x11 xvfb \
    at-spi2-core python3 python3-gi gir1.2-atspi-2.0 procps >/tmp/apt.log 2>&1 || { cat /tmp/apt.log >&2; exit 1; }
  cp /check/authority.crt /usr/local/share/ca-certificates/
  update-ca-certificates >/dev/null 2>&1
  echo "127.0.0.1 $host" >>/etc/hosts
  # Nobody is there to type a password.
  mkdir -p /etc/polkit-1/rules.d
  cat >/etc/polkit-1/rules.d/50-visitor.rules <<'END'
polkit.addRule(function(action, subject) {
  if (action.id.indexOf("org.freedesktop.packagekit.") == 0 && subject.user == "visitor") return polkit.Result.YES;
});
END
  # The commands of a menu bar can be pressed without opening it.
  as_user mkdir -p /home/visitor/.config/Roamlet
  printf '[General]\nwindow.main.menuBar=true\n' | as_user tee /home/visitor/.config/Roamlet/Roamlet.conf >/dev/null
  mkdir -p /run/dbus
  dbus-daemon --system --fork
  # The number is one that nobody else has: a chroot shares the sockets of the machine.
  display=:$((1000 + RANDOM))
  Xvfb $display -ac -screen 0 1280x1024x24 >/tmp/xvfb.log 2>&1 &
  for _ in {1..300}; do
    [ ! -S "/tmp/.X11-unix/X${display#:}" ] || break
    sleep 0.1
  done
  [ -S "/tmp/.X11-unix/X${display#:}" ] || { cat /tmp/xvfb.log >&2; fail "no display"; }
  cd /check
  python3 /check/update-server.py "$port" >/tmp/server.log 2>&1 &
  # What the program says when it is asked for an update, and told to install it.
  update() {
    rm -rf /tmp/site && cp -r "/check/$1" /tmp/site && : >/tmp/requests
    as_user timeout 180 dbus-run-session -- env DISPLAY="$display" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "${@:2}" \
      python3 /check/update-driver.py 2>/tmp/driver.log >/tmp/said ||
      { cat /tmp/driver.log /tmp/server.log /tmp/requests >&2; fail "$1"; }
    grep -v '^SpiRegistry' /tmp/said
  }
  installed() { dpkg-query -W -f '${Version}' roamlet; }
  refused() {
    local said
    step "$1"
    said=$(update "$2" "${@:4}")
    echo "$said"
    grep -qF "$3" <<<"$said" || fail "it should say: $3"
    [ "$(installed)" = "$first-1" ] || fail "$(installed) is installed"
    [ -z "$(find /home/visitor/.cache/Roamlet/Updates -type f 2>/dev/null)" ] || fail "the package was kept"
  }

  refused "A package that others signed" wrong-key "its signature is wrong"
  refused "An old package that is offered as new" old-as-new "not the version that was announced"
  refused "A changed byte" changed-byte "its signature is wrong"
  refused "A package without encryption" plain-package "its address is not secure"
  refused "A feed that moved to where no encryption is" plain-feed "its address is not secure"
  refused "A proxy that is not there" right "cannot be reached" https_proxy=http://127.0.0.1:9

  step "Update to $second, through a proxy"
  said=$(update right https_proxy=http://127.0.0.1:$((port + 1)))
  echo "$said"
  grep -qF "Roamlet $second is installed" <<<"$said" || fail "it does not say that it is installed"
  grep -q "CONNECT $host:$port" /tmp/requests || fail "the proxy was not asked"
  [ "$(installed)" = "$second-1" ] || fail "$(installed) is installed"
  step "Start $second"
  [ "$(as_user roamlet --version)" = "Roamlet $second" ] || fail "$(as_user roamlet --version)"
  said=$(update right)
  echo "$said"
  grep -qF "Version $second is the newest there is." <<<"$said" || fail "it does not know its version"
  echo "An update is found, fetched, checked and installed, and what is not right is refused."
}

if [ "${1:-}" = --on-fresh-system ]; then
  on_fresh_system
  exit
fi

cd "$(dirname "$0")/.."
for tool in git openssl cmake; do
  command -v $tool >/dev/null || { echo "$tool is not installed." >&2; exit 77; }
done
work=$(mktemp -d)
trap 'end_fresh_debian; rm -rf "$work"' EXIT
mkdir "$work/check"
check=$work/check
cp Scripts/check-update.sh Scripts/fresh-debian.sh Scripts/update-server.py Scripts/update-driver.py "$check/"

# The folder stays, so that the next check builds only what has changed; and with it the key, which is built in.
mkdir -p build/update-check
cd build/update-check
[ -f key.pem ] || openssl genpkey -algorithm ed25519 -out key.pem
openssl genpkey -algorithm ed25519 -out "$work/other.pem"
if [ ! -d source ]; then
  git clone -q ../.. source
fi
git -C source fetch -q origin HEAD
git -C source checkout -q --detach -f FETCH_HEAD
release() {
  local today
  today=$(date --utc +%F)
  sed -i "s/^project(Roamlet VERSION [0-9.]*/project(Roamlet VERSION $1/" source/CMakeLists.txt
  sed -i "0,/^## .*/s//## $1 ($today)/" source/CHANGELOG.md
  sed -i "0,/<release version=\"[^\"]*\"/s//<release version=\"$1\"/" source/Resources/org.roamlet.Roamlet.metainfo.xml.in
  git -C source -c user.name=check -c user.email=check@roamlet.invalid commit -q --allow-empty -am "Release $1"
  echo "== Make release $1"
  ROAMLET_KEY_FILE=$PWD/key.pem ROAMLET_BASE_ADDRESS=https://$host:$port make -s -C source release >"$work/log" 2>&1 ||
    { tail -n 30 "$work/log" >&2; exit 1; }
  tail -n 2 "$work/log"
}
signature() { openssl pkeyutl -sign -rawin -inkey "$1" -in "$2" | base64 -w 0; }
release $first
cp source/build/release/publish/roamlet_$first-*.deb "$check/first.deb"
release $second
mkdir "$check/right"
cp source/build/release/publish/{roamlet_*.deb,feed.xml} "$check/right/"
name=$(cd "$check/right" && echo roamlet_*.deb)

variant() { cp -r "$check/right" "$check/$1"; }
# The feed of a variant says of the package what is right for it, signed with this key.
announce() {
  sed -i -e "s|length=\"[0-9]*\"|length=\"$(stat -c %s "$check/$1/$name")\"|" \
    -e "s|edSignature=\"[^\"]*\"|edSignature=\"$(signature "$2" "$check/$1/$name")\"|" "$check/$1/feed.xml"
}
variant wrong-key
announce wrong-key "$work/other.pem"
variant old-as-new
cp "$check/first.deb" "$check/old-as-new/$name"
announce old-as-new key.pem
variant changed-byte
printf 'X' | dd of="$check/changed-byte/$name" bs=1 seek=10000 conv=notrunc status=none
variant plain-package
sed -i "s|url=\"https:|url=\"http:|" "$check/plain-package/feed.xml"
variant plain-feed
echo "http://$host:$((port + 2))/feed.xml" >"$check/plain-feed/moved"
for each in wrong-key old-as-new changed-byte plain-package; do
  if said=$(source/build/release/roamlet-release-check "$check/$each/feed.xml" "$check/$each/$name" $first 2>&1); then
    echo "FAILED: $each passes the check of a release" >&2
    exit 1
  fi
  echo "$each: $said"
done

# Who vouches for the server there.
openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj "/CN=A check of Roamlet" -days 2 \
  -keyout "$work/authority.key" -out "$check/authority.crt" 2>/dev/null
openssl req -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -subj "/CN=$host" -keyout "$check/server.key" \
  -out "$work/server.csr" 2>/dev/null
openssl x509 -req -in "$work/server.csr" -CA "$check/authority.crt" -CAkey "$work/authority.key" -CAcreateserial -days 2 \
  -extfile <(echo "subjectAltName=DNS:$host") -out "$check/server.crt" 2>/dev/null
cd ../..
on_fresh_debian "$check" check-update.sh --on-fresh-system
