-- The guard's filter as a person would script it, measured like the real one: one zone along the
-- lower edge of each display but the first, and events in the middle of the last display (a miss)
-- or in its zone (a hit). Prints nanoseconds per event.

local zoneCount = tonumber(arg[1]) or 4
local events = tonumber(arg[2]) or 20000000
local width, height, thickness = 1920, 1080, 12

local zones = {}
for index = 1, zoneCount do
  zones[index] = {
    x = width * index, y = height - thickness, w = width, h = thickness, dx = 0, dy = -thickness,
  }
end

local function contains(zone, x, y)
  return x >= zone.x and x < zone.x + zone.w and y >= zone.y and y < zone.y + zone.h
end

local function filter(event)
  if event.flags.alt then
    return false
  end
  for _, zone in ipairs(zones) do
    if contains(zone, event.x, event.y) then
      event.x = event.x + zone.dx
      event.y = event.y + zone.dy
      return true
    end
  end
  return false
end

local function nanosecondsPerEvent(x, y, mustHit)
  local event = { x = x, y = y, flags = { alt = false } }
  local hits = 0
  local began = os.clock()
  for _ = 1, events do
    event.x, event.y = x, y
    if filter(event) then
      hits = hits + 1
    end
  end
  local elapsed = os.clock() - began
  assert(hits == (mustHit and events or 0), "the filter did not do what is measured")
  return elapsed / events * 1e9
end

local x = width * (zoneCount + 0.5)
print(string.format("miss %.2f", nanosecondsPerEvent(x, height / 2, false)))
print(string.format("hit %.2f", nanosecondsPerEvent(x, height - 5, true)))
