# For the scripts at the root: need PACKAGE... makes sure that Debian packages are installed. It
# installs what is missing where it may, else says what to install and ends the script.
need() {
  local missing=()
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local install=(apt-get install -y --no-install-recommends "${missing[@]}")
  echo "Installing: ${missing[*]}"
  if [ "$(id -u)" -eq 0 ]; then
    apt-get update -qq && DEBIAN_FRONTEND=noninteractive "${install[@]}" >/dev/null && return
  elif command -v sudo >/dev/null; then
    sudo apt-get update -qq && sudo "${install[@]}" >/dev/null && return
  fi
  echo "This needs packages that could not be installed. As root: ${install[*]}" >&2
  exit 1
}

to_build=(g++ cmake make qt6-base-dev)
to_build_the_page=(emscripten node-acorn cmake make python3)
on_a_virtual_screen=(xvfb xauth xdotool x11-utils imagemagick fonts-dejavu-core dbus-daemon)
browsers=(chromium firefox-esr webkit2gtk-driver xvfb xauth dbus-daemon fonts-dejavu-core)

# need_npm_packages FOLDER: has those installed that the folder's lockfile names, in just these versions.
need_npm_packages() {
  # Where Node does not come from Debian, it brings npm with it.
  command -v node >/dev/null || need nodejs
  command -v npm >/dev/null || need npm
  [ "$1/node_modules/.package-lock.json" -nt "$1/package-lock.json" ] || (cd "$1" && npm ci)
}
