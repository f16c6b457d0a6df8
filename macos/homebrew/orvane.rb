# A Homebrew cask, complete except for three things that need a published release: its address, its
# digest and the web page. They have recognisable placeholders.
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

  # Only the application itself or the user, in System Settings, can unregister a login item of
  # SMAppService; there is no command for it. On uninstallation only, Homebrew asks System Events to
  # delete the login item of the application's path or this name. A script in the cask would also
  # run on every upgrade, and the user would lose the login item each time. If System Events does
  # not list it, macOS drops it once the application is gone.
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
