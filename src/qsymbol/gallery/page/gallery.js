"use strict";
(() => {
  const byId = (id) => document.getElementById(id);
  const query = byId("query");
  const least = byId("least");
  const most = byId("most");
  const reset = byId("reset");
  const view = byId("view");
  const chips = [...document.querySelectorAll("#categories button")];
  const sections = [...document.querySelectorAll("main section")];

  // As one types: no accents, no capitals; umlauts also in two letters.
  const plain = (text) => text.toLowerCase().replace(/ß/g, "ss").normalize("NFD").replace(/\p{M}/gu, "");
  const spelled = (text) => plain(text.toLowerCase().replace(/ä/g, "ae").replace(/ö/g, "oe").replace(/ü/g, "ue"));

  const cards = [...document.querySelectorAll("main li")].map((item) => {
    const data = item.dataset;
    const section = item.closest("section");
    const category = section.dataset.category;
    const name = item.querySelector(".name").textContent;
    const text = `${name} ${category}`.normalize("NFC");
    return {
      item, section, category, name,
      button: item.querySelector("button"),
      text: `${plain(text)}\n${spelled(text)}`,
      width: Number(data.w), height: Number(data.h),
      side: Math.max(Number(data.w), Number(data.h)),
    };
  });
  let shown = cards;
  let category = null; // of the chosen chip; null for all
  let current = null; // the card in the large view
  let tabStop = null;

  const count = (n) => (n === 1 ? "1 Symbol" : `${n} Symbole`);

  // A section outside of the window is not drawn; its height is said beforehand, so that nothing jumps when it is. One
  // of very many cards leaves out card by card.
  for (const section of sections) section.classList.toggle("long", section.querySelectorAll("li").length > 240);
  function sizeSections() {
    if (shown.length === 0) return;
    const { item, section: first } = shown[0];
    const list = item.parentElement;
    const look = getComputedStyle(list);
    const columns = look.gridTemplateColumns.split(" ").length;
    const gap = parseFloat(look.rowGap);
    const row = item.getBoundingClientRect().height + gap;
    const head = list.getBoundingClientRect().top - first.getBoundingClientRect().top;
    const inside = new Map();
    for (const card of shown) inside.set(card.section, (inside.get(card.section) ?? 0) + 1);
    for (const [section, n] of inside) section.style.setProperty("--high", `${head + Math.ceil(n / columns) * row - gap}px`);
  }

  function setTabStop(card) {
    if (tabStop) tabStop.button.tabIndex = -1;
    tabStop = card;
    if (card) card.button.tabIndex = 0;
  }

  function filter() {
    const words = plain(query.value.normalize("NFC")).split(/\s+/).filter(Boolean);
    const from = least.value === "" ? -Infinity : least.valueAsNumber;
    const to = most.value === "" ? Infinity : most.valueAsNumber;
    shown = cards.filter((card) => {
      const fits = (category === null || card.category === category) && card.side >= from && card.side <= to &&
        words.every((word) => card.text.includes(word));
      card.item.hidden = !fits;
      return fits;
    });
    for (const section of sections) {
      const inside = shown.filter((card) => card.section === section).length;
      section.hidden = inside === 0;
      section.querySelector("h2 span").textContent = inside;
    }
    const filtered = words.length > 0 || category !== null || least.value !== "" || most.value !== "";
    byId("result").textContent = filtered ? `${shown.length} von ${cards.length} Symbolen` : count(cards.length);
    byId("nothing").hidden = shown.length > 0;
    reset.hidden = !filtered;
    setTabStop(shown.includes(tabStop) ? tabStop : shown[0]);
    sizeSections();
  }

  function choose(chip) {
    category = chip.dataset.all === undefined ? chip.dataset.category : null;
    for (const each of chips) each.setAttribute("aria-pressed", String(each === chip));
    filter();
  }

  // The large view.

  const shape = (name, attributes, text) => {
    const element = document.createElementNS("http://www.w3.org/2000/svg", name);
    for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
    if (text !== undefined) element.textContent = text;
    return element;
  };
  const number = (value) => String(Math.round(value * 100) / 100).replace(".", ",");
  const millimetres = (value) => `${number(value)}\u00a0mm`;
  const pair = (a, sign, b) => `${number(a)}\u00a0${sign}\u00a0${number(b)}\u00a0mm`;

  // The picture with measures of its nominal size around it and its reference point in it.
  function measured(card) {
    const picture = card.item.querySelector("svg");
    const box = picture ? picture.getAttribute("viewBox").split(" ").map(Number) : [0, 0, 1, 1];
    const left = Math.min(box[0], 0);
    const top = Math.min(box[1], 0);
    const right = Math.max(box[0] + box[2], card.width);
    const bottom = Math.max(box[1] + box[3], card.height);
    const unit = Math.max(right - left, bottom - top) / 100;
    const [refX, refY] = card.item.dataset.r.split(" ").map(Number);
    const margin = { left: 2 * unit, top: 2 * unit, right: 9 * unit, bottom: 9 * unit };
    const out = shape("svg", {
      viewBox: [left - margin.left, top - margin.top, right - left + margin.left + margin.right,
        bottom - top + margin.top + margin.bottom].join(" "),
      "aria-hidden": "true",
    });
    if (picture) out.append(...[...picture.children].map((child) => child.cloneNode(true)));
    const thin = { class: "measure", "vector-effect": "non-scaling-stroke" };
    const y = bottom + 3 * unit;
    const x = right + 3 * unit;
    const tick = unit;
    if (card.width > 0) {
      out.append(shape("path", { ...thin, d: `M0 ${y}H${card.width}M0 ${y - tick}v${2 * tick}M${card.width} ${y - tick}v${2 * tick}` }));
      out.append(shape("text", { class: "measure-text", x: card.width / 2, y: y + 4 * unit, "font-size": 3 * unit }, millimetres(card.width)));
    }
    if (card.height > 0) {
      out.append(shape("path", { ...thin, d: `M${x} 0V${card.height}M${x - tick} 0h${2 * tick}M${x - tick} ${card.height}h${2 * tick}` }));
      out.append(shape("text", {
        class: "measure-text", x: x + 4 * unit, y: card.height / 2, "font-size": 3 * unit,
        transform: `rotate(-90 ${x + 4 * unit} ${card.height / 2})`,
      }, millimetres(card.height)));
    }
    out.append(shape("path", {
      class: "reference", "vector-effect": "non-scaling-stroke",
      d: `M${refX - 1.6 * unit} ${refY}h${3.2 * unit}M${refX} ${refY - 1.6 * unit}v${3.2 * unit}` +
        `M${refX - unit} ${refY}a${unit} ${unit} 0 1 0 ${2 * unit} 0a${unit} ${unit} 0 1 0 ${-2 * unit} 0`,
    }));
    return out;
  }

  function facts(card) {
    const data = card.item.dataset;
    const kinds = ["Linien und Flächen", "Kreise", "Bögen", "Texte", "Unbestimmte"];
    const counts = data.e.split(" ").map(Number);
    const elements = kinds.map((kind, i) => [kind, counts[i]]).filter(([, n]) => n > 0);
    const [refX, refY] = data.r.split(" ").map(Number);
    const [wide, high] = data.x.split(" ").map(Number);
    const rows = [
      ["Kategorie", card.category],
      ["Breite × Höhe", pair(card.width, "×", card.height)],
      ["Gezeichnet", pair(wide, "×", high)],
      ["Bezugspunkt", pair(refX, "|", refY)],
      [`Elemente (${counts.reduce((sum, n) => sum + n, 0)})`, elements.map(([kind, n]) => `${kind}: ${n}`).join("\n") || "keine"],
      ["Datei", data.f],
    ];
    return rows.filter(([, value]) => value !== "").map(([term, value]) => {
      const group = document.createElement("div");
      const dt = document.createElement("dt");
      const dd = document.createElement("dd");
      dt.textContent = term;
      if (term === "Bezugspunkt") dd.append(document.createElement("i"));
      value.split("\n").forEach((line, i) => dd.append(...(i > 0 ? [document.createElement("br")] : []), line));
      group.append(dt, dd);
      return group;
    });
  }

  function show(card) {
    current = card;
    setTabStop(card);
    byId("view-name").textContent = card.name;
    const picture = byId("view-picture");
    picture.setAttribute("aria-label", `${card.name}, ${millimetres(card.width)} breit und ${millimetres(card.height)} hoch`);
    picture.replaceChildren(measured(card));
    byId("view-facts").replaceChildren(...facts(card));
    if (!view.open) view.showModal();
  }

  function step(by) {
    const at = shown.indexOf(current);
    if (at >= 0) show(shown[(at + by + shown.length) % shown.length]);
  }

  // Keys: the cards are one stop of the tabulator, arrows go on from there.

  function neighbour(card, key) {
    const at = shown.indexOf(card);
    if (key === "ArrowLeft") return shown[at - 1];
    if (key === "ArrowRight") return shown[at + 1];
    if (key === "Home") return shown[0];
    if (key === "End") return shown[shown.length - 1];
    const down = key === "ArrowDown";
    const { left: x, top: y } = card.item.getBoundingClientRect();
    let row = null;
    let best = null;
    let nearest = 0;
    for (let i = at + (down ? 1 : -1); i >= 0 && i < shown.length; i += down ? 1 : -1) {
      const { left, top } = shown[i].item.getBoundingClientRect();
      if (top === y) continue;
      row ??= top;
      if (top !== row) break;
      if (!best || Math.abs(left - x) < Math.abs(nearest - x)) [best, nearest] = [shown[i], left];
    }
    return best;
  }

  function focusOn(card) {
    if (!card) return;
    setTabStop(card);
    card.button.focus();
    card.item.scrollIntoView({ block: "nearest" });
  }

  const cardOf = new Map(cards.map((card) => [card.button, card]));
  const arrows = ["ArrowLeft", "ArrowRight", "ArrowUp", "ArrowDown", "Home", "End"];

  document.addEventListener("keydown", (event) => {
    if (event.altKey || event.ctrlKey || event.metaKey) return;
    if (view.open) {
      if (event.key === "ArrowLeft" || event.key === "ArrowRight") step(event.key === "ArrowLeft" ? -1 : 1);
      else return;
    } else if (event.key === "/" && !(event.target instanceof HTMLInputElement)) {
      query.focus();
      query.select();
    } else if (event.key === "Escape" && !reset.hidden) {
      byId("filters").reset();
    } else if (event.target === query && event.key === "ArrowDown") {
      focusOn(tabStop);
    } else if (event.target === query && event.key === "Enter") {
      if (shown.length > 0) show(shown[0]);
    } else if (cardOf.has(event.target) && arrows.includes(event.key)) {
      const next = neighbour(cardOf.get(event.target), event.key);
      if (next) focusOn(next);
      else if (event.key === "ArrowUp") query.focus();
    } else return;
    event.preventDefault();
  });
  document.querySelector("main").addEventListener("click", (event) => {
    const card = cardOf.get(event.target.closest("button"));
    if (card) show(card);
  });
  for (const input of [query, least, most]) input.addEventListener("input", filter);
  byId("filters").addEventListener("submit", (event) => event.preventDefault());
  byId("filters").addEventListener("reset", () => setTimeout(() => {
    if (chips.length > 0) choose(chips[0]);
    else filter();
    query.focus();
  }));
  for (const chip of chips) chip.addEventListener("click", () => choose(chip));
  byId("previous").addEventListener("click", () => step(-1));
  byId("next").addEventListener("click", () => step(1));
  byId("close").addEventListener("click", () => view.close());
  view.addEventListener("click", (event) => { if (event.target === view) view.close(); });
  view.addEventListener("close", () => focusOn(current));

  addEventListener("resize", sizeSections);

  for (const card of cards) card.button.tabIndex = -1;
  filter();
})();
