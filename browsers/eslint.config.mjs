// What the linter asks of the page's scripts and of all that works a browser.
import js from '@eslint/js';

const strict = { curly: ['error', 'multi-line'], eqeqeq: 'error', 'no-shadow': 'error',
  'no-var': 'error', 'prefer-const': 'error' };
const named = (...names) => Object.fromEntries(names.map((name) => [name, 'readonly']));
const both = named('console', 'setTimeout', 'clearTimeout', 'URL', 'fetch');

export default [
  { rules: { ...js.configs.recommended.rules, ...strict } },
  { files: ['toolkit/web/**/*.js'], languageOptions: { globals: {
    ...both, ...named('AbortController', 'Blob', 'DecompressionStream', 'ImageData', 'Response',
      'TextDecoder', 'TextEncoder', 'WebAssembly', 'alert', 'atob', 'cancelAnimationFrame',
      'devicePixelRatio', 'document', 'getComputedStyle', 'matchMedia', 'performance',
      'requestAnimationFrame', 'window') } } },
  { files: ['**/*.mjs'], languageOptions: { globals: {
    ...both, ...named('Buffer', 'process') } } },
];
