// The service worker: keeps every file of the game, so that it starts and plays without a net. Pictures,
// sounds and typefaces come from the store; all else from the server as long as it answers.
const store = 'brolgan-@VERSION@';
const files = @FILES@;
const lasting = /\.(webp|png|jpg|mp3|woff2)$/;

addEventListener('install', (event) => {
  const fill = async () => (await caches.open(store)).addAll(files);
  event.waitUntil(fill().then(() => skipWaiting()));
});

addEventListener('activate', (event) => {
  const clear = async () => {
    const old = (await caches.keys()).filter((name) => name.startsWith('brolgan-') && name !== store);
    await Promise.all(old.map((name) => caches.delete(name)));
    await clients.claim();
  };
  event.waitUntil(clear());
});

const kept = async (request) => (await caches.open(store)).match(request, { ignoreSearch: true, ignoreVary: true });

const fresh = async (request) => {
  try {
    return await fetch(request);
  } catch (fault) {
    const found = await kept(request);
    if (found) return found;
    throw fault;
  }
};

// What is kept, or the part of it that is asked for: some browsers play sounds by parts alone.
const part = async (request, found) => {
  const range = /^bytes=(\d+)-(\d*)$/.exec(request.headers.get('range') || '');
  if (!range) return found;
  const whole = await found.arrayBuffer();
  const from = Number(range[1]);
  const bytes = whole.slice(from, range[2] === '' ? whole.byteLength : Number(range[2]) + 1);
  const headers = new Headers(found.headers);
  headers.set('Content-Range', `bytes ${from}-${from + bytes.byteLength - 1}/${whole.byteLength}`);
  headers.set('Content-Length', bytes.byteLength);
  return new Response(bytes, { status: 206, headers });
};

// A picture or sound that the store lacks is kept when the server has it.
const stored = async (request) => {
  const found = await kept(request);
  if (found) return part(request, found);
  const answer = await fetch(request);
  if (answer.status === 200) (await caches.open(store)).put(request, answer.clone());
  return answer;
};

addEventListener('fetch', (event) => {
  const url = new URL(event.request.url);
  if (event.request.method !== 'GET' || url.origin !== location.origin) return;
  event.respondWith(lasting.test(url.pathname) ? stored(event.request) : fresh(event.request));
});
