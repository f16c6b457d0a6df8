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

  uninstall quit:       "app.orvane.Orvane",
            login_item: "Orvane"

  zap trash: [
    "~/Library/Preferences/app.orvane.Orvane.plist",
    "~/Library/Saved Application State/app.orvane.Orvane.savedState",
  ]

  caveats <<~EOS
    Orvane needs the Accessibility permission and asks for it when a lock is first switched on.
    After uninstalling, this removes what is left of the permission:
      tccutil reset Accessibility app.orvane.Orvane
  EOS
end
