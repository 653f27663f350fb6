// A player made of chance, on the page itself: does acts until it has gone to fight so many times, and
// answers with the acts and with what could be seen after every so many of them; with neither for every 0.
const [seed, startClock, turns, every] = arguments;
let state = seed;
const die = (sides) => {
  state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
  return Math.floor((state / 4294967296) * sides);
};
const pick = (list) => list[die(list.length)];
const at = (id) => document.getElementById(id);
const usable = (element) => element && !element.disabled && element.tabIndex >= 0 && element.checkVisibility({ visibilityProperty: true });
const words = ['', '0', '1', '3', '12', '-4', '1e2', 'abc', '7,5', 'Zażółć', '40000'];

const press = (id) => {
  if (!usable(at(id))) return null;
  at(id).click();
  return 'click ' + id.replace('.', ' ');
};
const any = (form) => {
  const element = pick([...at(form).querySelectorAll('button[id], input, select, textarea')].filter(usable));
  if (!element) return null;
  const name = element.id.replace('.', ' ');
  if (element.tagName === 'SELECT') {
    if (element.options.length === 0) return null;
    element.selectedIndex = die(element.options.length);
    const row = element.options[element.selectedIndex].textContent;
    const isFirst = [...element.options].findIndex((option) => option.textContent === row) === element.selectedIndex;
    element.dispatchEvent(new Event('change', { bubbles: true }));
    return isFirst ? `select ${name} = ${row}` : null;
  }
  if (element.matches('input[type=text], textarea')) {
    if (element.readOnly || /gracz|ile_punktow/.test(element.id)) return null;
    element.value = pick(words);
    element.dispatchEvent(new Event('input', { bubbles: true }));
    return `type ${name} = ${element.value}`;
  }
  if (/\.(gracz|GraczM|Start|Save|Zakoncz|w\d+|NastTura)/.test(element.id)) return null;
  return press(element.id);
};
const onward = {
  Main: () => press(at('Main.Czygra(1)').textContent === '+' ? 'Main.Start' : at('Main.Czygra(0)').textContent === '+' ? 'Main.GraczM(1)' : 'Main.gracz(0)'),
  CTmhero: () => press('CTmhero.Save'),
  CTsklep: () => press('CTsklep.w' + (1 + die(2))),
  Prefight: () => press('Prefight.Zakoncz'),
  Fight: () => (usable(at('Fight.CloseDMG')) ? press('Fight.CloseDMG') : null) || press(pick(['Fight.Atak', 'Fight.Atak', 'Fight.NastTura'])),
};

const acts = [];
const seen = [];
let clock = startClock;
let fights = 0;
const note = (act) => {
  if (!act) return;
  if (/CTsklep w\d/.test(act)) fights += 1;
  if (every === 0) return;
  acts.push([clock, act]);
  if (acts.length % every === 0 || at('error').open || !at('anew').hidden) seen.push([acts.length - 1, see()]);
};
for (let i = 0; fights < turns && i < turns * 400; ++i) {
  clock += 0.25;
  brolgan.seed(clock);
  if (at('error').open) {
    at('error').close();
    await new Promise((done) => setTimeout(done));
    continue;
  }
  if (!at('anew').hidden) {
    at('anew').click();
    note('start');
    continue;
  }
  const screen = Object.keys(onward).find((name) => !at(name).hidden);
  if (!screen) {
    at('Brolgan').querySelector('[data-close]').click();
    note('close Brolgan');
  } else if (die(2000) === 0) {
    at(screen).querySelector('[data-close]').click();
    note('close ' + screen);
  } else if (!at('FHero').hidden && die(3) > 0) {
    note(press('FHero.HeroClose'));
  } else {
    note(die(3) === 0 ? onward[screen]() : any(screen));
  }
  // The page is drawn now and then, as for a person.
  if (i % 50 === 0) await new Promise((done) => setTimeout(done));
}
return { acts, seen, clock, fights, state };
