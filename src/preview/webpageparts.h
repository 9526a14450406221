// What all web pages of Skins have in common: their style and their script.
#pragma once

namespace veneerer {

// Screens are hidden only by a browser that can tell whether one is asked for.
inline constexpr char kPageStyle[] = R"css(
:root { color-scheme: light dark; --ground: #f4f5f7; --ink: #1f242b; --link: #0b57d0; --rule: #c8ccd2; }
@media (prefers-color-scheme: dark) {
  :root { --ground: #16191d; --ink: #e6e9ed; --link: #8ab4f8; --rule: #3c424a; }
}
body { margin: 0 auto; max-width: 1960px; padding: 1rem; background: var(--ground); color: var(--ink);
  font: 1rem/1.5 system-ui, sans-serif; }
a { color: var(--link); }
h1, h2 { line-height: 1.2; margin: .5rem 0; }
h1 { font-size: 1.4rem; overflow-wrap: anywhere; }
h2 { font-size: 1.2rem; }
nav ul { display: flex; flex-wrap: wrap; gap: .25rem 1rem; list-style: none; margin: 0; padding: 0; }
.screen { position: relative; display: inline-block; max-width: 100%; line-height: 0; }
.screen img { max-width: 100%; max-height: 92vh; width: auto; height: auto; outline: 1px solid var(--rule); }
.screen a { position: absolute; border-radius: 4px; }
.screen a:hover { outline: 2px solid var(--link); }
:focus-visible { outline: 3px solid var(--link); outline-offset: 2px; }
section { padding: .5rem 0; }
main:has(section:target) section:not(:target) { display: none; }
main:not(:has(section:target)) section:not(:first-child) { display: none; }
@media print { main section { display: block !important; break-inside: avoid; } nav { display: none; } }
)css";

inline constexpr char kPageScript[] = R"js(
"use strict";
const screens = Array.from(document.querySelectorAll("main > section"));
const shown = () => Math.max(0, screens.findIndex(screen => "#" + screen.id === location.hash));
const steps = { ArrowRight: 1, ArrowLeft: -1 };
addEventListener("keydown", event => {
  const step = steps[event.key];
  if (!step || event.altKey || event.ctrlKey || event.metaKey || event.shiftKey) return;
  event.preventDefault();
  location.hash = screens[(shown() + step + screens.length) % screens.length].id;
});
addEventListener("hashchange", () => screens[shown()].querySelector("h2").focus());
)js";

}  // namespace veneerer
