// SPDX-License-Identifier: MIT
// What Scripts/desktop-search-driver.py does inside of GNOME Shell: presses keys, and tells what is shown.
(() => {
  const { Clutter, GdkPixbuf, GLib, Shell, St } = imports.gi;
  const results = Main.overview._overview.controls._searchController._searchResults;
  // Made anew when applications are looked for anew, which takes what it shows away.
  const provider = () => results._providers.find(each => each.id === PROVIDER);
  const keyboard = Clutter.get_default_backend().get_default_seat()
    .create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);
  const everything = actor => [actor].concat(...actor.get_children().map(everything));
  const key = (value, state) => keyboard.notify_keyval(GLib.get_monotonic_time(), value, state);
  Shell.AppSystem.get_default().connect('installed-changed', () => ++global.check.reloads);
  global.check = {
    clipboard: null,
    reloads: 0,
    press(...values) {
      values.forEach(value => key(value, Clutter.KeyState.PRESSED));
      values.reverse().forEach(value => key(value, Clutter.KeyState.RELEASED));
    },
    readClipboard() {
      this.clipboard = null;
      St.Clipboard.get_default().get_text(St.ClipboardType.CLIPBOARD, (_, text) => { this.clipboard = text ?? ''; });
    },
    setClipboard(text) { St.Clipboard.get_default().set_text(St.ClipboardType.CLIPBOARD, text); },
    launch() { provider().display.providerInfo.emit('clicked', 1); },
    windows() { return global.get_window_actors().map(actor => actor.meta_window.get_title()); },
    isProvided: provider() !== undefined,
    state() {
      const display = provider().display;
      return {
        text: Main.overview.searchEntry.get_text(),
        isOpen: Main.overview.visible && !Main.overview.animationInProgress,
        isSearching: results.searchInProgress,
        terms: results._terms,
        more: display.visible && display.providerInfo._moreLabel.visible ? display.providerInfo._moreLabel.text : '',
        rows: !display.visible ? [] : display._content.get_children().map(row => ({
          texts: everything(row).filter(each => each instanceof St.Label).map(each => each.clutter_text.text),
          icon: everything(row).filter(each => each instanceof St.Icon && each.gicon instanceof GdkPixbuf.Pixbuf)
            .map(each => each.gicon.get_width())[0] ?? 0,
        })),
      };
    },
  };
})()
