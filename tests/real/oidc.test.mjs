import assert from 'node:assert/strict';
import { after, afterEach, beforeEach, test } from 'node:test';
import { closeBrowser, openPage, picture, signIn } from './browser.mjs';
import { describeWith } from './counterparts.mjs';
import { applyAccount, openMeetings, resolved, tokenRequest } from './preferences.mjs';
import { pause, pictures, Session } from './processes.mjs';
import { freePort, startOidcProvider } from './providers.mjs';

const email = 'alice@example.com';
const fixedPort = await freePort();
const accessSeconds = 1;

async function expire() {
  await pause(1000 * accessSeconds + 100);
}

async function refreshed(session, address = email) {
  const from = session.printed.length;
  await session.play(tokenRequest(address));
  return (await session.waitFor('a token for the host', (line) => line.sent === 29, from)).content;
}

await describeWith(['oidc-provider', 'playwright-core', 'chromium --version'], () => {
  let provider;
  let session;
  beforeEach(async () => {
    provider = await startOidcProvider({ accessSeconds });
    session = new Session();
    await openMeetings(session);
  });
  afterEach(async () => {
    await session.end();
    await provider.stop();
  });
  after(closeBrowser);

  async function signedIn(address, page, options = {}) {
    await signIn(page, await applyAccount(session, provider.authority, { email: address, ...options }), address);
    return (await session.waitFor('the credential', (line) => line.sent === 27)).content;
  }

  for (const { name, notification, redirectUri, scheme } of [
    { name: '127.0.0.1, light', notification: 26, redirectUri: 'http://127.0.0.1/done', scheme: 'light' },
    { name: 'fixed port, light', notification: 25, redirectUri: `http://127.0.0.1:${fixedPort}/done`, scheme: 'light' },
    { name: 'localhost, dark', notification: 26, redirectUri: 'http://localhost/done', scheme: 'dark' },
    { name: '[::1], dark', notification: 25, redirectUri: 'http://[::1]/done', scheme: 'dark' },
  ]) {
    test(`sign-in by notification ${notification}, ${name}; refresh`, async () => {
      const page = await openPage(scheme);
      const address = await applyAccount(session, provider.authority, { email, redirectUri, notification });
      const pictureName = `sign-in-${scheme}-${notification}`;
      await signIn(page, address, email, pictureName);
      const credential = (await session.waitFor('the credential', (line) => line.sent === 27)).content;
      assert.equal(credential.QRT_CredentialType, 'QRT_CredentialTypeOAuthToken');
      assert.equal(credential.QRT_CredentialUsername, email);

      await page.waitForURL((url) => !url.search);
      await page.getByText('You are signed in').first().waitFor();
      await picture(page, `${pictureName}-3-done`);
      const text = await page.innerText('body');
      await page.reload();
      assert.equal(await page.innerText('body'), text);
      assert.equal(page.url(), new URL('done', page.url()).href);

      await session.play(resolved(email), { wait: 300 }, { screenshot: `${pictures}/${pictureName}-4-preferences.png` });
      assert.match(JSON.stringify(await session.get('window')), /Applied successfully/);
      await expire();
      const answer = await refreshed(session);
      assert.equal(answer.isTokenExpired, false);
      assert.notEqual(answer.QRT_ListingMeeting_exchOnlineToken, credential.QRT_CredentialContent);
      assert.equal(session.sent(27).length, 1);
      assert.equal(provider.counts.redeemed, 1);
    });
  }

  test('requests for tokens of two users at once: each refreshed once', async () => {
    const users = ['alice@example.com', 'bob@example.com'];
    for (const user of users) {
      await signedIn(user, await openPage());
      await session.play(resolved(user));
    }
    for (const round of [1, 2]) {
      await expire();
      const from = session.printed.length;
      await session.play(...[...users, ...users].map(tokenRequest));
      const answers = () => session.printed.slice(from).filter((line) => line.sent === 29);
      await session.waitFor('four answers', () => answers().length === 4, from);
      const tokens = users.map((user) =>
        answers()
          .map((line) => line.content)
          .filter((content) => JSON.stringify(content.kKZCalendarIntegration).includes(user))
          .map((content) => content.QRT_ListingMeeting_exchOnlineToken),
      );
      assert.deepEqual(tokens.map((each) => each.length), [2, 2]);
      assert.deepEqual(tokens.map((each) => new Set(each).size), [1, 1]);
      assert.notEqual(tokens[0][0], tokens[1][0]);
      assert.ok(tokens[0][0]);
      assert.equal(provider.counts.redeemed, 2 * round);
    }
    assert.equal(provider.counts.revoked, 0);
    // The provider refuses the scopes of a refresh until it is asked without them, once for each user.
    assert.ok(provider.counts.refused <= 2, `${provider.counts.refused} refused`);
    assert.equal(session.sent(27).length, 2);
  });

  test('a refresh token used twice: revoked, the host is told to sign in again', async () => {
    await signedIn(email, await openPage());
    const first = (await session.get('tokens')).map(({ expiresOn, ...item }) => ({ ...item, expiresIn: -60 }));
    await expire();
    await refreshed(session);
    await session.play({ set: 'tokens', items: first });
    const answer = await refreshed(session);
    assert.equal(answer.GetTokenFailed, true);
    assert.equal(answer.GetTokenFailedReason, 'SignInAgain');
    assert.ok(provider.counts.revoked > 0);
  });

  test('the user refuses on the page of the provider', async () => {
    const page = await openPage();
    await page.goto(await applyAccount(session, provider.authority, { email }));
    await page.click('text=Cancel');
    await page.waitForURL((url) => url.pathname === '/done' && !url.search);
    await picture(page, 'refused-page');
    assert.doesNotMatch(await page.innerText('body'), /You are signed in/);
    await session.play({ wait: 300 }, { screenshot: `${pictures}/refused-preferences.png` });
    assert.match(JSON.stringify(await session.get('window')), /Applied failed/);
    assert.deepEqual(session.sent(27), []);
  });
});
