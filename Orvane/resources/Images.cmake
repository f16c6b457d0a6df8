# The images of the application, by the names under which it asks for them. Each has a drawing
# NAME.svg here, and rendered/NAME.png and rendered/NAME@2x.png made from it by tools/render-artwork.
# An image NAME-dark takes the place of NAME in the dark appearance.
set(orvane_image_names
  AppIcon
  DisplayLaptop
  DisplayLaptop-dark
  DisplayMonitor
  DisplayMonitor-dark)
