# Sourced by the smoke test and the start-up benchmark: a private session bus
# that starts the program for the desktop's search as the installed service
# file says, with the given program in place of the installed one.
#
#   start_activating_bus FOLDER PROGRAM [LOG]
#
# Listens in FOLDER, exports DBUS_SESSION_BUS_ADDRESS and sets bus_pid.
start_activating_bus() {
  local folder=$1 program=$2 log=${3:-/dev/null}
  local template
  template="$(dirname "${BASH_SOURCE[0]}")/../resources/search/org.penwick.Penwick.Search.service.in"
  mkdir -p "$folder/services"
  sed "s|@CMAKE_INSTALL_FULL_BINDIR@/penwick|$program|" "$template" \
    >"$folder/services/org.penwick.Penwick.Search.service"
  cat >"$folder/bus.conf" <<CONF
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=$folder</listen>
  <servicedir>$folder/services</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
CONF
  dbus-daemon --config-file="$folder/bus.conf" --nofork --print-address=3 \
    3>"$folder/bus.address" 2>>"$log" &
  bus_pid=$!
  until [[ -s $folder/bus.address ]]; do sleep 0.01; done
  DBUS_SESSION_BUS_ADDRESS=$(head -n1 "$folder/bus.address")
  export DBUS_SESSION_BUS_ADDRESS
}
