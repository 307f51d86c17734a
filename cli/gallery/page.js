// The page works without this: its cards are links to the large pictures. What
// is added here is the filters, the viewer with its slider, and the theme.
"use strict";
(() => {
  const gallery = JSON.parse(document.getElementById("gallery-data").textContent);
  const byId = (id) => document.getElementById(id);
  const make = (tag, text, properties = {}) =>
    Object.assign(document.createElement(tag), { textContent: text }, properties);
  const root = document.documentElement;
  root.classList.add("script");

  // ---------------------------------------------------------------- theme

  // A page from a file may have no storage; the choice then lasts as long as it.
  const memory = {
    get: (key) => { try { return localStorage.getItem(key); } catch { return null; } },
    set: (key, value) => { try { localStorage.setItem(key, value); } catch { /* not kept */ } },
  };
  const darkSystem = matchMedia("(prefers-color-scheme: dark)");
  const themes = {
    auto: ["Colours follow the system", "M12 3a9 9 0 1 0 0 18zM12 3a9 9 0 0 1 0 18"],
    light: ["Light colours", "M12 8a4 4 0 1 0 0 8 4 4 0 0 0 0-8M12 2v2M12 20v2M2 12h2M20 12h2M4.9 4.9l1.4 1.4M17.7 17.7l1.4 1.4M19.1 4.9l-1.4 1.4M6.3 17.7l-1.4 1.4"],
    dark: ["Dark colours", "M20 14.5A8.5 8.5 0 0 1 9.5 4 8.5 8.5 0 1 0 20 14.5"],
  };
  let theme = Object.hasOwn(themes, memory.get("tarnwick-theme") ?? "") ? memory.get("tarnwick-theme") : "auto";

  function showTheme() {
    root.dataset.theme = theme === "auto" ? (darkSystem.matches ? "dark" : "light") : theme;
    const [label, path] = themes[theme];
    const button = byId("theme");
    button.setAttribute("aria-label", label + ": change");
    button.title = label;
    // The drawing stays the same element: a press that meets a change of the
    // system's colours would otherwise lose what it began on, and not click.
    button.querySelector("path").setAttribute("d", path);
  }
  byId("theme").addEventListener("click", () => {
    const names = Object.keys(themes);
    theme = names[(names.indexOf(theme) + 1) % names.length];
    memory.set("tarnwick-theme", theme);
    showTheme();
  });
  darkSystem.addEventListener("change", showTheme);
  showTheme();

  // ---------------------------------------------------------------- looks

  // Without accents and case, so that "cafe" finds "Café".
  const plain = (text) => text.normalize("NFD").replace(/\p{M}/gu, "").toLowerCase();
  const cards = new Map([...document.querySelectorAll(".card")].map((card) => [card.dataset.id, card]));
  const looks = gallery.looks.map((look) => ({
    ...look,
    card: cards.get(look.id),
    sets: [...new Set(look.textures.map((texture) => texture.set).filter(Boolean))],
    words: plain([look.name, look.folder, look.kindTitle, ...look.effects, ...look.categories,
      ...look.textures.flatMap((texture) => [texture.name, texture.set])].join("\n")),
  }));
  const lookOf = new Map(looks.map((look) => [look.id, look]));
  let shown = looks;

  // ---------------------------------------------------------------- filters

  function count(values) {
    const counts = new Map();
    for (const value of values) counts.set(value, (counts.get(value) ?? 0) + 1);
    return counts;
  }
  function fillSelect(select, values) {
    const counts = [...count(values)].sort(([a], [b]) => a.localeCompare(b));
    for (const [value, number] of counts) select.add(new Option(`${value} (${number})`, value));
    select.closest(".field").hidden = counts.length === 0;
  }
  function addKind(kind, title, number) {
    const input = make("input", "", { type: "radio", name: "kind", value: kind, id: "kind-" + kind,
      className: "unseen", checked: kind === "" });
    const label = make("label", title, { htmlFor: input.id });
    label.append(make("span", String(number)));
    byId("kinds").append(input, label);
  }
  fillSelect(byId("set"), looks.flatMap((look) => look.sets));
  fillSelect(byId("effect"), looks.flatMap((look) => look.effects));
  const titles = new Map(looks.map((look) => [look.kind, look.kindTitle]));
  addKind("", "All", looks.length);
  for (const [kind, number] of count(looks.map((look) => look.kind))) {
    addKind(kind, titles.get(kind), number);
  }
  byId("kinds").hidden = titles.size < 2;

  const wantedKind = () => document.querySelector("input[name=kind]:checked").value;

  function filter() {
    const words = plain(byId("search").value).split(/\s+/).filter(Boolean);
    const kind = wantedKind();
    const set = byId("set").value;
    const effect = byId("effect").value;
    shown = looks.filter((look) =>
      (!kind || look.kind === kind) && (!set || look.sets.includes(set)) &&
      (!effect || look.effects.includes(effect)) && words.every((word) => look.words.includes(word)));
    for (const look of looks) look.card.hidden = true;
    for (const look of shown) look.card.hidden = false;
    for (const group of document.querySelectorAll(".group")) {
      group.hidden = !group.querySelector(".card:not([hidden])");
    }
    const filtered = words.length > 0 || kind || set || effect;
    const all = looks.length === 1 ? "1 look" : looks.length + " looks";
    byId("count").textContent = filtered ? `${shown.length} of ${all}` : all;
    byId("clear").hidden = !filtered;
    byId("nothing").hidden = shown.length > 0;
  }
  function clearFilters() {
    for (const id of ["search", "set", "effect"]) byId(id).value = "";
    byId("kind-").checked = true;
    filter();
    byId("search").focus();
  }
  const form = document.querySelector(".filters");
  form.addEventListener("input", filter);
  form.addEventListener("submit", (event) => event.preventDefault());
  byId("clear").addEventListener("click", clearFilters);
  byId("clear-nothing").addEventListener("click", clearFilters);
  filter();  // A reload keeps what the fields held.

  // ---------------------------------------------------------------- slider

  const compare = byId("compare");
  const slider = byId("slider");
  compare.closest(".viewer").style.setProperty("--ratio", gallery.width / gallery.height);

  function split(percent) {
    const value = Math.min(Math.max(percent, 0), 100);
    slider.value = value;
    slider.setAttribute("aria-valuetext", `${Math.round(value)} % before`);
    compare.style.setProperty("--split", value + "%");
    compare.classList.toggle("no-before", value < 10);
    compare.classList.toggle("no-after", value > 90);
  }
  function splitAt(event) {
    const box = compare.getBoundingClientRect();
    split(100 * (event.clientX - box.left) / box.width);
  }
  compare.addEventListener("pointerdown", (event) => {
    if (event.button !== 0) return;
    compare.setPointerCapture(event.pointerId);
    splitAt(event);
  });
  compare.addEventListener("pointermove", (event) => {
    if (compare.hasPointerCapture(event.pointerId)) splitAt(event);
  });
  slider.addEventListener("input", () => split(Number(slider.value)));
  split(50);

  // ---------------------------------------------------------------- viewer

  const viewer = byId("viewer");
  let current = null;

  // The look that the address names: a link can be kept, and "back" on a phone
  // closes the viewer.
  const addressOf = (look) => "#/" + look.id;
  const lookOfAddress = () =>
    location.hash.startsWith("#/") ? lookOf.get(location.hash.slice(2)) ?? null : null;

  function showFacts(look) {
    const facts = byId("viewer-facts");
    facts.replaceChildren();
    const add = (term, value, note) => {
      const data = make("dd", value);
      if (note) data.append(" ", make("small", note));
      facts.append(make("dt", term), data);
    };
    // A texture that several effects share is told once.
    const roles = new Map();
    for (const texture of look.textures) {
      roles.set(texture.name, [...(roles.get(texture.name) ?? []), texture]);
    }
    for (const [name, uses] of roles) add(uses.map((use) => use.role).join(", "), name, uses[0].set);
    if (look.effects.length > 0) add("Effects", look.effects.join(", "));
    if (look.categories.length > 0) add("Colours", look.categories.join(", "));
  }

  // The same text, but no line ends between the dash of an option and its name.
  function showCommand(command) {
    const pieces = command.split(/(?<= )(--?[a-z][a-z-]*)/);
    byId("command").replaceChildren(
      ...pieces.map((piece, i) => (i % 2 ? make("span", piece, { className: "option" }) : piece)));
  }

  function show(look) {
    current = look;
    const after = byId("after");
    // The small picture stands in until the large one is there.
    compare.style.backgroundImage = `url("${look.small}")`;
    after.removeAttribute("src");
    after.src = look.large;
    after.alt = "The photograph with the look " + look.name;
    byId("viewer-name").textContent = look.name;
    byId("viewer-kind").textContent = look.kindTitle + (look.folder ? " · " + look.folder : "");
    showFacts(look);
    showCommand(look.command);
    byId("open-large").href = look.large;
    byId("copy").textContent = "Copy";
    byId("said").textContent = "";
    const list = shown.includes(look) ? shown : looks;
    const place = list.indexOf(look);
    byId("viewer-place").textContent = `${place + 1} of ${list.length}`;
    byId("previous").disabled = byId("next").disabled = list.length < 2;
    for (const step of [1, list.length - 1]) new Image().src = list[(place + step) % list.length].large;
  }

  function followAddress() {
    const look = lookOfAddress();
    if (look === null) {
      if (viewer.open) viewer.close();
      return;
    }
    if (look !== current) show(look);
    if (!viewer.open) viewer.showModal();
  }
  function step(by) {
    const list = shown.includes(current) ? shown : looks;
    const look = list[(list.indexOf(current) + by + list.length) % list.length];
    location.replace(addressOf(look));
  }

  let cameFromPage = false;
  document.querySelector("main").addEventListener("click", (event) => {
    const card = event.target.closest(".card");
    const wantsTab = event.ctrlKey || event.metaKey || event.shiftKey || event.altKey;
    if (card === null || wantsTab) return;
    event.preventDefault();
    cameFromPage = true;
    location.hash = addressOf(lookOf.get(card.dataset.id));
  });
  viewer.addEventListener("close", () => {
    const card = current?.card;
    current = null;
    if (lookOfAddress() !== null) {
      if (cameFromPage) history.back();
      else location.replace("#looks");
    }
    cameFromPage = false;
    if (card && !card.hidden) card.querySelector("a").focus();
  });
  addEventListener("hashchange", followAddress);
  byId("close").addEventListener("click", () => viewer.close());
  byId("previous").addEventListener("click", () => step(-1));
  byId("next").addEventListener("click", () => step(1));
  followAddress();

  // ---------------------------------------------------------------- copy

  async function copyCommand() {
    let copied = false;
    try {
      await navigator.clipboard.writeText(current.command);
      copied = true;
    } catch {
      // No clipboard for this page, or not from a file: the old way.
      getSelection().selectAllChildren(byId("command"));
      copied = document.execCommand("copy");
    }
    byId("copy").textContent = copied ? "Copied" : "Press Ctrl+C";
    byId("said").textContent = copied ? "Command line copied" : "Command line selected: copy it";
  }
  byId("copy").addEventListener("click", copyCommand);

  // ---------------------------------------------------------------- keys

  addEventListener("keydown", (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    const key = event.key.toLowerCase();
    if (!viewer.open) {
      const types = /^(input|select|textarea)$/i.test(event.target.tagName);
      if (key === "/" && !types) {
        event.preventDefault();
        byId("search").focus();
      }
      return;
    }
    // On the slider the arrows are its own.
    const arrows = event.target === slider ? {} : { arrowleft: -1, arrowright: 1 };
    if (key in arrows) {
      event.preventDefault();
      step(arrows[key]);
    } else if (key === "b") {
      split(Number(slider.value) < 50 ? 100 : 0);
    } else if (key === "c") {
      copyCommand();
    }
  });
})();
