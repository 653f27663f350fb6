// The page's only script: does for the face what page.h says, and tells it what a person does.
mergeInto(LibraryManager["library"], {
  $page: {
    data: {},       // The files beside the page, by name, as they were before the start.
    players: {},
    scrolled: [],  // what has been scrolled since its form was fresh

    element: (id) => document.getElementById(UTF8ToString(id)),
    call: (name, kinds, ...values) => ccall(name, 'number', kinds, values),
    url: (name) => name.replace(/\\/g, '/').split('/').map(encodeURIComponent).join('/'),

    // A keyboard on the screen would cover what a person came to see, so it waits for a touch.
    touch: null,
    isTouched: () => (page.touch ||= matchMedia('(pointer: coarse)')).matches,
    focus: (form, element) => {
      const isUnasked = element && page.isTouched() && element.matches('input[type=text], textarea');
      if (element && !isUnasked) element.focus({ preventScroll: page.isTouched() });
      else if (!form.contains(document.activeElement)) form.focus({ preventScroll: true });
    },
    // The form that has the keyboard: the uppermost one, unless it stands on another.
    formInUse: () => {
      const form = document.activeElement.closest('dialog[data-form]');
      return form && form.id !== 'Brolgan' ? form : [...document.querySelectorAll('dialog[data-form]')].filter((one) => !one.hidden).pop();
    },

    // Where the caption of an element stands.
    captionOf: (element) => {
      if (element.tagName === 'FIELDSET') return element.querySelector(':scope > legend');
      return element.type === 'radio' ? element.nextElementSibling : element;
    },
    setText: (element, text) => {
      if (element.matches('input, textarea')) element.value = text;
      if (!element.matches('input[type=text], textarea')) page.captionOf(element).textContent = text;
      // The style sets what is long the smaller: told in fours of letters, up to four of them.
      if (element.matches('.blow')) element.dataset.length = Math.min(4, Math.ceil(text.trim().length / 4));
    },
    setPicture: (image, name, width, height) => {
      const source = image.parentElement.querySelector('source');
      const [, stem, ending] = /^(.*?)(\.[^.]*)?$/.exec(page.url(name));
      const sizes = (end) => `${stem}-s${end} ${Math.round(width / 2)}w, ${stem}${end} ${width}w`;
      image.removeAttribute('srcset');
      source.removeAttribute('srcset');
      if (name === '') return image.removeAttribute('src');
      if (width > 0) {
        source.srcset = sizes('.webp');
        image.srcset = sizes(ending);
        image.width = width;
        image.height = height;
      }
      image.src = page.url(name);
    },

    // Whether bytes, each a character, are a picture and not the beginning of one alone.
    isPicture: (bytes) => {
      const number = (at) => [0, 1, 2, 3].reduce((sum, i) => sum + bytes.charCodeAt(at + i) * 256 ** i, 0);
      return /^(\xff\xd8\xff.*\xff\xd9|\x89PNG.*IEND\xaeB`\x82|GIF8.*;$)/s.test(bytes) ||
        (/^BM/.test(bytes) && bytes.length >= number(2)) || (/^RIFF....WEBP/s.test(bytes) && bytes.length >= number(4) + 8);
    },

    fetchData: async () => {
      const fetchOne = async (name) => {
        const answer = await fetch(name);
        if (answer.ok) page.data[name] = new Uint8Array(await answer.arrayBuffer());
      };
      // What cannot be fetched is missing, and told when the game asks for it.
      await Promise.allSettled(['bron.cfg', 'monsters.cfg'].map(fetchOne));
    },

    listen: () => {
      document.addEventListener('click', (event) => {
        const element = event.target.closest('button, input');
        if (!element) return;
        if (element.dataset.close !== undefined) page.call('game_close', ['string'], element.closest('dialog').id);
        else if (element.id === 'anew') page.call('game_start', []);
        else page.call('game_click', ['string'], element.id);
      });
      document.addEventListener('change', (event) => {
        const element = event.target;
        if (element.tagName === 'SELECT') page.call('game_select', ['string', 'number'], element.id, element.selectedIndex);
      });
      document.addEventListener('input', (event) => {
        const element = event.target;
        if (element.matches('input[type=text], textarea')) page.call('game_type', ['string', 'string'], element.id, element.value);
      });
      document.addEventListener('focusin', (event) => page.call('game_focus', ['string'], event.target.id));
      document.addEventListener('animationend', (event) => delete event.target.dataset.move);
      document.addEventListener('keydown', page.press);
      // To look what stands scrolled would have the browser lay the page out.
      document.addEventListener('scroll', (event) => page.scrolled.push(event.target), true);
      document.querySelector('#error').addEventListener('close', () => page.call('game_over', []));
    },

    press: (event) => {
      const form = page.formInUse();
      if (document.querySelector('#error').open || !form || event.ctrlKey || event.metaKey) return;
      if (event.key === 'Escape') page.call('game_escape', ['string'], form.id);
      // Some keyboards make another sign of a letter pressed with Alt; then its place tells which it is.
      const [, place] = /^(?:Key|Digit)(.)$/.exec(event.code) || [];
      const key = /^[a-z0-9]$/i.test(event.key) ? event.key.toUpperCase() : place;
      if (!event.altKey || !key) return;
      if (page.call('game_reach', ['string', 'number'], form.id, key.charCodeAt(0))) event.preventDefault();
    },

    // What the developer's build shows to tests: its files, each byte a character, and its clock.
    open: () => {
      const bytesOf = (text) => Uint8Array.from(text, (character) => character.charCodeAt(0));
      const read = (name) => {
        const length = ccall('game_file_length', 'number', ['string'], [name]);
        if (length < 0) throw new Error(`no file ${name}`);
        const at = ccall('game_file_bytes', 'number', ['string'], [name]);
        return Array.from(HEAPU8.subarray(at, at + length), (byte) => String.fromCharCode(byte)).join('');
      };
      const write = (name, bytes) => page.call('game_write', ['string', 'array', 'number'], name, bytesOf(bytes), bytes.length);
      const list = () => ccall('game_files', 'string', [], []).split('\n').filter((name) => name !== '');
      globalThis.brolgan = {
        files: { list, read, write },
        seed: (seconds) => page.call('game_seed', ['number'], seconds),
      };
    },

    // Does something when the browser has nothing else to do.
    later: (doing) => (globalThis.requestIdleCallback || setTimeout)(doing),
    // Once the title is there: lays the other screens out, one at a time, and then has the service worker
    // keep the game.
    prepare: () => {
      if (page.call('game_prepare', [])) page.later(page.prepare);
      else if (!Module['_game_seed'] && 'serviceWorker' in navigator) navigator.serviceWorker.register('worker.js');
    },

    begin: () => {
      addRunDependency('data');
      page.fetchData().then(() => {
        page.listen();
        removeRunDependency('data');
      });
      Module['onRuntimeInitialized'] = () => {
        if (Module['_game_seed']) page.open();
        setTimeout(() => page.later(page.prepare), 500);
      };
    },
  },
  $page__postset: 'page.begin();',

  page_show__deps: ['$page'],
  page_show: function (id, shown) {
    const form = page.element(id);
    form.hidden = !shown;
    form.dataset.ready = '';
  },
  page_ready__deps: ['$page'],
  page_ready: function (id) {
    const form = page.element(id);
    form.dataset.ready = '';
    for (const image of form.querySelectorAll('img')) {
      if (image.getClientRects().length > 0) image.loading = 'eager';
    }
  },
  page_title__deps: ['$page'],
  page_title: function (id, title) {
    const form = page.element(id);
    form.querySelector('[data-title]').textContent = UTF8ToString(title);
    form.setAttribute('aria-label', UTF8ToString(title).trim());
  },
  page_refresh__deps: ['$page'],
  page_refresh: function (id) {
    const form = page.element(id);
    for (const part of page.scrolled.filter((one) => form.contains(one))) part.scrollTop = 0;
    page.scrolled = page.scrolled.filter((one) => !form.contains(one));
  },
  page_text__deps: ['$page'],
  page_text: function (id, text) { return page.setText(page.element(id), UTF8ToString(text)); },
  page_colour__deps: ['$page'],
  page_colour: function (id, colour) { page.element(id).dataset.colour = UTF8ToString(colour); },
  page_tip__deps: ['$page'],
  page_tip: function (id, tip) {
    const element = page.element(id);
    element.title = UTF8ToString(tip);
    if (element.type === 'radio') element.parentElement.title = element.title;
  },
  page_hidden__deps: ['$page'],
  page_hidden: function (id, hidden) { page.element(id).hidden = hidden; },
  page_disabled__deps: ['$page'],
  page_disabled: function (id, disabled) {
    const element = page.element(id);
    if ('disabled' in element) element.disabled = disabled;
    else element.setAttribute('aria-disabled', disabled);
  },
  page_locked__deps: ['$page'],
  page_locked: function (id, locked) { page.element(id).readOnly = locked; },
  page_skipped__deps: ['$page'],
  page_skipped: function (id, skipped) { page.element(id).tabIndex = skipped ? -1 : 0; },
  page_checked__deps: ['$page'],
  page_checked: function (id, checked) {
    const element = page.element(id);
    if ('checked' in element) element.checked = checked;
    else element.setAttribute('aria-checked', checked !== 0);
  },
  page_spoken__deps: ['$page'],
  page_spoken: function (id, words) {
    const element = page.element(id);
    // Plain words can be called otherwise only as a picture can.
    if (!element.matches('button, input, select, textarea, img, h3')) element.setAttribute('role', 'img');
    element.setAttribute(element.tagName === 'IMG' ? 'alt' : 'aria-label', UTF8ToString(words));
  },
  page_key__deps: ['$page'],
  page_key: function (id, key) {
    const element = page.element(id);
    element.dataset.key = String.fromCharCode(key);
    element.setAttribute('aria-keyshortcuts', 'Alt+' + element.dataset.key);
  },
  page_dimmed__deps: ['$page'],
  page_dimmed: function (id, dimmed) { page.element(id).toggleAttribute('data-dimmed', dimmed); },
  page_inviting__deps: ['$page'],
  page_inviting: function (id, inviting) { page.element(id).toggleAttribute('data-inviting', inviting); },
  page_clear__deps: ['$page'],
  page_clear: function (id) { return page.element(id).replaceChildren(); },
  page_row__deps: ['$page'],
  page_row: function (id, text) { return page.element(id).add(new Option(UTF8ToString(text))); },
  page_selected__deps: ['$page'],
  page_selected: function (id, row) { page.element(id).selectedIndex = row; },
  page_head__deps: ['$page'],
  page_head: function (id, row, picture) { page.element(id).options[row].dataset.picture = UTF8ToString(picture); },
  page_picture__deps: ['$page'],
  page_picture: function (id, name, width, height) {
    const element = page.element(id);
    page.setPicture(element.querySelector('img') || element, UTF8ToString(name), width, height);
  },
  page_focus__deps: ['$page'],
  page_focus: function (form, id) { return page.focus(page.element(form), page.element(id)); },
  page_news__deps: ['$page'],
  page_news: function (id, words) {
    const line = document.createElement('p');
    line.textContent = UTF8ToString(words);
    const news = document.querySelector('#news');
    if (news.childElementCount > 3) news.firstElementChild.remove();
    news.append(line);
    page.element(id).dataset.move = 'in';
  },
  page_flinch__deps: ['$page'],
  page_flinch: function (id) { page.element(id).dataset.move = 'flinch'; },
  page_error__deps: ['$page'],
  page_error: function (text) {
    document.querySelector('#error-text').textContent = UTF8ToString(text);
    document.querySelector('#error').showModal();
  },
  page_ended__deps: ['$page'],
  page_ended: function (ended) {
    const anew = document.querySelector('#anew');
    anew.hidden = !ended;
    if (ended) anew.focus();
  },

  page_has_picture__deps: ['$page'],
  page_has_picture: function (name) {
    const request = new XMLHttpRequest();
    request.open('GET', page.url(UTF8ToString(name)), false);
    request.overrideMimeType('text/plain; charset=x-user-defined');
    try {
      request.send();
    } catch (fault) {
      return 53;
    }
    if (request.status !== 200) return 53;
    const bytes = Array.from(request.responseText, (c) => String.fromCharCode(c.charCodeAt(0) & 255)).join('');
    return page.isPicture(bytes) ? 0 : 481;
  },
  page_file_length__deps: ['$page'],
  page_file_length: function (name) {
    const file = page.data[UTF8ToString(name)];
    return file ? file.length : -1;
  },
  page_file_bytes__deps: ['$page'],
  page_file_bytes: function (name, bytes) {
    HEAPU8.set(page.data[UTF8ToString(name)], bytes);
    delete page.data[UTF8ToString(name)];
  },
  page_folder: function (file, address, size) {
    const path = UTF8ToString(file).replace(/\\/g, '/');
    const folder = new URL('.', location.href).href + path.slice(0, path.lastIndexOf('/') + 1);
    stringToUTF8(folder.replace(/\/$/, ''), address, size);
  },
  page_seconds: function () {
    const now = new Date();
    return now.getHours() * 3600 + now.getMinutes() * 60 + now.getSeconds() + now.getMilliseconds() / 1000;
  },
  page_play__deps: ['$page'],
  page_play: function (player, file) {
    const name = UTF8ToString(player);
    const sound = page.players[name] || (page.players[name] = new Audio());
    sound.src = page.url(UTF8ToString(file));
    sound.play().catch(() => {});
  },
  page_stop__deps: ['$page'],
  page_stop: function (player) {
    const sound = page.players[UTF8ToString(player)];
    if (sound) sound.pause();
  },
});
