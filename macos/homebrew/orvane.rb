# A Homebrew cask, ready but for three things that only a published release has: its address, its
# digest and the web page. What stands here for them is recognisable as a placeholder.
cask "orvane" do
  version "1.0.0"
  sha256 "0000000000000000000000000000000000000000000000000000000000000000"

  url "https://orvane.example/releases/v#{version}/Orvane-#{version}.dmg"
  name "Orvane"
  desc "Keeps the Dock on the display you chose"
  homepage "https://orvane.example/"

  livecheck do
    url :homepage
    regex(/Orvane[._-]v?(\d+(?:\.\d+)+)\.dmg/i)
  end

  depends_on macos: ">= :ventura"

  app "Orvane.app"

  # A login item of SMAppService is unregistered by the application itself or, in System Settings, by
  # its user; no command does it. Homebrew asks System Events to delete what is listed under the
  # application's path or this name, at an uninstallation only. A script of the cask would also run at
  # every upgrade, and each would cost the user the login item. Where System Events does not list it,
  # macOS drops it once the application is gone.
  uninstall quit:       "app.orvane.Orvane",
            login_item: "Orvane"

  zap trash: [
    "~/Library/Preferences/app.orvane.Orvane.plist",
    "~/Library/Saved Application State/app.orvane.Orvane.savedState",
  ]

  caveats <<~EOS
    Orvane needs the Accessibility permission and asks for it when a lock is first switched on.
    Switch "Open at Login" off before uninstalling; that is certain to remove the login item.
    After uninstalling, this removes what is left of the permission:
      tccutil reset Accessibility app.orvane.Orvane
  EOS
end
