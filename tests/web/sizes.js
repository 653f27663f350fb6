// What is wrong with a screen at the size that the page has now: things cut off at the sides, covered, too
// small for a finger, or out of reach. Answers with a list of faults.
const [name, touch] = arguments;
const form = document.getElementById(name);
const faults = [];
const shown = (element) => element.getClientRects().length > 0 && getComputedStyle(element).visibility !== 'hidden';
const scrolls = [form, ...form.querySelectorAll('*')].filter(shown);

if (document.documentElement.scrollWidth > innerWidth) faults.push('the page scrolls sideways');
for (const part of scrolls) {
  const style = getComputedStyle(part);
  if (part.scrollWidth > part.clientWidth + 1 && style.overflowX !== 'visible' && !part.matches('option, select, input, img')) {
    faults.push(`${part.id || part.className || part.tagName} is cut at the side: ${part.scrollWidth} of ${part.clientWidth}`);
  }
}
const place = (element) => element.getBoundingClientRect();
const held = (element) => element.parentElement.closest('.body, .scene, .actions, .reports, dialog');
for (const element of [...form.querySelectorAll('[id*="."], [data-close]')].filter(shown)) {
  const box = place(element);
  const around = place(form);
  if (box.left < around.left - 1 || box.right > around.right + 1) faults.push(`${element.id} stands beside its window`);
  // Less than half a line is only the tail of a letter.
  const style = getComputedStyle(element);
  const isOfWords = element.matches('span, p, h3, h4, button:not(.picture), output, label') && style.display !== 'inline';
  if (isOfWords && element.scrollHeight > element.clientHeight + parseFloat(style.fontSize) / 2) {
    faults.push(`the words of ${element.id} do not fit`);
  }
  const panel = element.closest('.panel');
  if (panel && panel !== element) {
    const edge = place(panel);
    if (box.left < edge.left - 1 || box.right > edge.right + 1 || box.top < edge.top - 14 || box.bottom > edge.bottom + 1) {
      if (getComputedStyle(panel).overflow === 'visible') faults.push(`${element.id} sticks out of its panel`);
    }
  }
}
const acted = [...form.querySelectorAll('button, input, select, textarea')].filter(shown);
for (const element of acted) {
  const target = element.type === 'radio' ? element.closest('label') : element;
  if (touch && (place(target).width < 43.5 || place(target).height < 43.5)) {
    faults.push(`${element.id || 'close'} is too small: ${place(target).width} x ${place(target).height}`);
  }
  if (!form.hidden) element.scrollIntoView({ block: 'nearest' });
  const box = place(element);
  if (box.bottom > innerHeight + 1 || box.top < -1) faults.push(`${element.id} cannot be brought into sight`);
  const over = document.elementFromPoint(box.left + box.width / 2, box.top + box.height / 2);
  const hit = over && (over === element || element.contains(over) || over.closest('label') === target);
  const isBehind = name === 'Brolgan' && element.id !== '' ? true : over && over.closest('dialog') !== form;
  if (!element.disabled && !hit && !isBehind) faults.push(`${element.id} is covered by ${over && (over.id || over.className)}`);
}
for (const part of scrolls) part.scrollTop = 0;
if (!touch) {
  for (const part of [...form.querySelectorAll('.body, .scene')].filter(shown)) {
    if (part.scrollHeight > part.clientHeight + 1) faults.push(`${part.className} scrolls on a large screen: ${part.scrollHeight} of ${part.clientHeight}`);
  }
}
if (name === 'Fight') {
  for (const action of form.querySelectorAll('.actions > *')) {
    const box = place(action);
    if (box.top < 0 || box.bottom > innerHeight || box.left < 0 || box.right > innerWidth) faults.push(`${action.id} is out of reach`);
  }
}
return faults;
