# strumenti.sh - what demo and test share: the tools that a fresh Debian 12 machine lacks, and where the project lies.
# Sourced, not run. The network is used only if something is missing.

progetto=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)

passo() { printf '\n== %s\n' "$*"; }
muori() { printf 'errore: %s\n' "$*" >&2; exit 1; }

come_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"
  elif command -v sudo > /dev/null; then sudo "$@"
  else muori "servono i diritti di amministratore per: $*"
  fi
}

installato() { dpkg-query -W -f='${db:Status-Status}' "$1" 2> /dev/null | grep -qx installed; }

# assicura PACCHETTO...: installs those that are not there.
assicura() {
  command -v dpkg-query > /dev/null || { echo "non è Debian: si usano gli strumenti presenti"; return 0; }
  local mancanti=() p
  for p in "$@"; do installato "$p" || mancanti+=("$p"); done
  [ ${#mancanti[@]} -gt 0 ] || return 0
  passo "Installazione di: ${mancanti[*]}"
  come_root apt-get update
  come_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${mancanti[@]}"
}

nuclei() { nproc 2> /dev/null || echo 2; }
